-- Business-trip applications of the HR system. A slip can take its lines from one of them.
CREATE TABLE T出張申請 (
    事業所コード text,
    番号基準日付 text,
    出張申請No text,
    出張申請日付 text,
    社員コード text,
    開始日付 text,
    終了日付 text,
    日数 smallint,
    出張区分 text,
    出張先 text,
    出張目的 text,
    ユーザID text,
    登録日付 text,
    更新日付 text
);
CREATE INDEX T出張申請_申請キー ON T出張申請 (事業所コード, 番号基準日付, 出張申請No);
-- The application list runs newest first
CREATE INDEX T出張申請_申請日付 ON T出張申請 (出張申請日付, 出張申請No);
CREATE INDEX T出張申請_社員 ON T出張申請 (社員コード, 出張申請日付);
