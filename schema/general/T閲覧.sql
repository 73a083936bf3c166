-- Who looked up which record, one row per look-up, also for keys that turned out not to exist.
CREATE TABLE T閲覧 (
    事業所コード text,
    番号基準日付 text,
    閲覧No text,
    閲覧日付 text,
    閲覧時刻 text,
    担当者コード text,
    担当者名 text,
    閲覧情報 text,
    伝票事業所コード text,
    伝票番号基準日付 text,
    伝票No text,
    キー項目 text,
    閲覧区分 text,
    閲覧メモ text,
    承認日付 text,
    承認者コード text,
    承認区分 text,
    ユーザID text,
    登録日付 text,
    更新日付 text
);
-- The retry of a new browse number
CREATE INDEX T閲覧_閲覧キー ON T閲覧 (事業所コード, 番号基準日付, 閲覧No);
