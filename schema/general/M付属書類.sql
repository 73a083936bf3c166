-- Documents attached to any record of the suite. The copy in the document folder is named after
-- 情報名, 情報識別ID and SEQNo, so these three are the key. A clash of two users adding at the
-- same moment fails the second insert, which then leaves no copy behind.
CREATE TABLE M付属書類 (
    情報名 text NOT NULL,
    情報識別ID text NOT NULL,
    SEQNo text NOT NULL,
    書類名 text,
    タイトル text,
    伝票番号ID text,
    伝票事業所コード text,
    伝票番号基準日付 text,
    伝票No text,
    伝票日付 text,
    対応先コード text,
    得意先コード text,
    納品先コード text,
    仕入先コード text,
    銀行コード text,
    科目コード text,
    社員コード text,
    担当者コード text,
    部門コード text,
    セクションコード text,
    商品コード text,
    メーカコード text,
    対象金額 numeric(19,4),
    ユーザID text,
    登録日付 text,
    PRIMARY KEY (情報名, 情報識別ID, SEQNo)
);
