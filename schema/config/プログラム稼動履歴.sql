-- Trace of every run of every program. Nothing reads it back, and the menu program purges rows
-- older than six months by 実行日付.
CREATE TABLE プログラム稼動履歴 (
    実行日付 text,  -- yyyymmdd hhnnss
    プログラムID text,
    proccounter text,  -- twelve digits, orders rows within one second
    摘要 text,
    運用事業所コード text,
    起動担当者コード text,
    ユーザID text
);
-- Purge by age
CREATE INDEX プログラム稼動履歴_実行日付 ON プログラム稼動履歴 (実行日付);
