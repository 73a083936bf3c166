-- Requests ('00') and answers ('99') between programs. The started program finds its request
-- by the exact text of its command line within the last minute.
CREATE TABLE プログラム連携情報 (
    発信日時 text,
    発信プログラムID text,
    受信プログラムID text,
    受信期限 text,
    連携区分 text,
    起動連携情報 text,
    終了連携情報 text,
    運用事業所コード text,
    起動担当者コード text,
    ユーザID text
);
-- Look-up of a waiting request
CREATE INDEX プログラム連携情報_受信 ON プログラム連携情報 (受信プログラムID, 連携区分, 発信日時);
-- Purge by age
CREATE INDEX プログラム連携情報_発信日時 ON プログラム連携情報 (発信日時);
