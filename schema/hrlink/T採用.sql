-- Hiring records, numbered like documents.
CREATE TABLE T採用 (
    事業所コード text,
    番号基準日付 text,
    採用No text,
    採用日付 text,
    氏名 text,
    カナ氏名 text,
    採用事業所コード text,
    採用部門コード text,
    採用セクションコード text,
    採用就業形態コード text,
    採用社員区分 text,
    採用役職コード text,
    採用職責 text
);
CREATE INDEX T採用_採用キー ON T採用 (事業所コード, 番号基準日付, 採用No);
