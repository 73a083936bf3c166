-- Leaves of absence. Both ends of the period count as on leave.
CREATE TABLE T休職 (
    社員コード text,
    休職開始日付 text,
    休職終了日付 text
);
CREATE INDEX T休職_社員 ON T休職 (社員コード);
