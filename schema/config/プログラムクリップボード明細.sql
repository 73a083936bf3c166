-- Lines of a copied record, purged independently of their head by 貼付日時.
CREATE TABLE プログラムクリップボード明細 (
    貼付日時 text,  -- yyyymmdd hhnnss
    貼付プログラムID text,
    行番号 text,
    明細情報 text,
    ユーザID text
);
-- Purge by age
CREATE INDEX プログラムクリップボード明細_貼付日時 ON プログラムクリップボード明細 (貼付日時);
