-- Records copied in one program to be pasted in another. The menu program purges rows older
-- than three days by 貼付日時. The slip program itself never copies.
CREATE TABLE プログラムクリップボード (
    貼付日時 text,  -- yyyymmdd hhnnss
    貼付プログラムID text,
    情報種類 text,
    キー情報 text,
    運用事業所コード text,
    起動担当者コード text,
    ユーザID text
);
-- Purge by age
CREATE INDEX プログラムクリップボード_貼付日時 ON プログラムクリップボード (貼付日時);
