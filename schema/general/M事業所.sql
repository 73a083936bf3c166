-- Offices. '000' is the head office and stands for the whole company. A branch overrides the
-- company's PIN and update settings, and its folders where they are not empty.
CREATE TABLE M事業所 (
    コード text NOT NULL,
    名称 text,
    郵便番号 text,
    住所A text,
    住所B text,
    住所C text,
    代表者名 text,
    電話 text,
    FAX text,
    登録番号 text,  -- invoice registration number
    HOMEPAGE text,
    EMAIL text,
    銀行口座A text,
    銀行口座B text,
    銀行口座C text,
    銀行口座D text,
    総合振込ファイル text,
    基本読込フォルダ text,
    帳票イメージフォルダ text,
    その他読込ファイル text,
    本支店連携フォルダ text,
    テキスト出力フォルダ text,
    BACKUPフォルダ text,
    地区コード text,
    暗証番号有無 smallint,
    特権暗証番号 text,  -- master PIN of the office, stored scrambled
    更新実行区分 smallint,
    PRIMARY KEY (コード)
);
