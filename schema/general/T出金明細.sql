-- Lines of a stored slip, read back in 出金行No order. 出金固有行No stays with a line across
-- corrections, 出金行No is its position at the last save.
CREATE TABLE T出金明細 (
    事業所コード text,
    番号基準日付 text,
    出金No text,
    出金固有行No text,
    出金行No text,
    出金日付 text,
    担当者コード text,
    部門コード text,
    セクションコード text,
    費目区分 text,  -- two-digit text, joined with K費目区分.区分
    内税外税区分 text,
    支払先 text,
    課税事業所区分 text,
    摘要 text,
    消費税率 numeric(19,4),
    出金金額 numeric(19,4),
    出金消費税 numeric(19,4),
    実質出金金額 numeric(19,4),
    税抜出金金額 numeric(19,4),
    税込出金金額 numeric(19,4),
    会計集計日付 text,
    明細メモ text,
    承認日付 text,
    承認者コード text,
    承認区分 text,  -- read on load, never written by the slip program
    ユーザID text,
    登録日付 text,
    更新日付 text
);
-- Lines of one slip in order
CREATE INDEX T出金明細_伝票行順 ON T出金明細 (事業所コード, 番号基準日付, 出金No, 出金行No);
-- The description list picks lines by period
CREATE INDEX T出金明細_出金日付 ON T出金明細 (出金日付);
-- The description list reads descriptions in order and checks the date from the index alone
CREATE INDEX T出金明細_摘要 ON T出金明細 (摘要, 出金日付);
-- The description list of the server engines reads distinct first 20 characters in order; with
-- the date and the whole description beside them, the index alone answers it
CREATE INDEX T出金明細_先頭摘要 ON T出金明細 (substring(摘要,1,20), 出金日付, 摘要);
-- The slip search by the amount of any line
CREATE INDEX T出金明細_金額 ON T出金明細 (実質出金金額);
