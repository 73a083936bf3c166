-- Snapshots of slip headers, one per store, numbered by the history sequence of the slip.
-- No key to defend: the suite only adds to them, and the history window reads them back.
CREATE TABLE R出金 (
    事業所コード text,
    番号基準日付 text,
    出金履歴No text,
    赤黒区分 text,
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
    伝票発行区分 text,
    出金メモ text,
    承認日付 text,
    承認者コード text,
    承認区分 text,
    ユーザID text,
    登録日付 text,
    更新日付 text
);
-- The retry of a new history number
CREATE INDEX R出金_履歴キー ON R出金 (事業所コード, 番号基準日付, 出金履歴No);
-- The history of one slip, read by its key
CREATE INDEX R出金_伝票 ON R出金 (事業所コード, 番号基準日付, 出金No);
