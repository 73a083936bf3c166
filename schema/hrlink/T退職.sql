-- Retirements. An employee counts as retired from 退職日付 on.
CREATE TABLE T退職 (
    社員コード text,
    退職日付 text
);
CREATE INDEX T退職_社員 ON T退職 (社員コード);
