-- One row per stored slip. The key (事業所コード, 番号基準日付, 出金No) is not declared unique:
-- numbers are defended by retry against this table, and two users correcting the same slip
-- at the same moment must both get their insert through.
CREATE TABLE T出金 (
    事業所コード text,
    番号基準日付 text,
    出金No text,
    出金日付 text,
    担当者コード text,
    部門コード text,
    セクションコード text,
    出張申請事業所コード text,
    出張申請番号基準日付 text,
    出張申請No text,
    出金伝票備考A text,
    出金伝票備考B text,
    出金金額合計 numeric(19,4),
    出金消費税合計 numeric(19,4),
    実質出金金額合計 numeric(19,4),
    税抜出金金額合計 numeric(19,4),
    税込出金金額合計 numeric(19,4),
    前回税率出金金額合計 numeric(19,4),
    前回税率出金消費税合計 numeric(19,4),
    今回税率出金金額合計 numeric(19,4),
    今回税率出金消費税合計 numeric(19,4),
    伝票発行区分 text,  -- written as a quoted digit
    出金メモ text,
    承認日付 text,
    承認者コード text,
    承認区分 text,  -- read on load, never written by the slip program
    ユーザID text,
    登録日付 text,
    更新日付 text
);
-- Look-up by key and the retry of a new number
CREATE INDEX T出金_伝票キー ON T出金 (事業所コード, 番号基準日付, 出金No);
-- Stepping to the previous and next slip of an office
CREATE INDEX T出金_事業所日付順 ON T出金 (事業所コード, 出金日付, 出金No);
-- Slip list over all offices, and the slips of one day and staff member
CREATE INDEX T出金_日付順 ON T出金 (出金日付, 出金No, 事業所コード, 番号基準日付);
-- The slip list's number search: by number, then the newest date first
CREATE INDEX T出金_番号順 ON T出金 (出金No, 出金日付);
-- The slip list's person search, and the entry screen's staff preset: one person's slips, newest
-- first (without it PostgreSQL reads the whole table for a person of few slips)
CREATE INDEX T出金_担当者日付順 ON T出金 (担当者コード, 出金日付, 出金No);
-- The slip search by the slip's total, in date order within one amount
CREATE INDEX T出金_合計金額 ON T出金 (実質出金金額合計, 出金日付);
