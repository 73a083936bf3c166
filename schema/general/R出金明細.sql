-- Snapshots of slip lines. The new-state writer puts the tax-exclusive amount into 会計集計日付,
-- the tax-inclusive amount into 税抜出金金額 and the aggregation date into 税込出金金額. A text date
-- column and numeric amount columns take both kinds of value on every engine, so the row is
-- still stored as the older programs of the suite store it.
CREATE TABLE R出金明細 (
    事業所コード text,
    番号基準日付 text,
    出金履歴No text,
    赤黒区分 text,
    出金No text,
    出金固有行No text,
    出金行No text,
    出金日付 text,
    担当者コード text,
    部門コード text,
    セクションコード text,
    費目区分 text,
    内税外税区分 text,
    支払先 text,
    課税事業所区分 text,
    摘要 text,
    消費税率 numeric(19,4),
    出金金額 numeric(19,4),
    出金消費税 numeric(19,4),
    実質出金金額 numeric(19,4),
    会計集計日付 text,
    税抜出金金額 numeric(19,4),
    税込出金金額 numeric(19,4),
    明細メモ text,
    承認日付 text,
    承認者コード text,
    承認区分 text,
    ユーザID text,
    登録日付 text,
    更新日付 text
);
CREATE INDEX R出金明細_履歴キー ON R出金明細 (事業所コード, 番号基準日付, 出金履歴No, 出金固有行No);
-- The history of one slip, read by its key in line order
CREATE INDEX R出金明細_伝票 ON R出金明細 (事業所コード, 番号基準日付, 出金No, 出金行No);
-- A correction that moved a slip to another number sequence, found by the user of its rows
CREATE INDEX R出金明細_利用者 ON R出金明細 (事業所コード, ユーザID, 赤黒区分, 出金履歴No);
-- The slip search's deleted slips: old-state lines by slip key, read from the index alone
CREATE INDEX R出金明細_旧状態 ON R出金明細 (赤黒区分, 事業所コード, 番号基準日付, 出金No, 出金履歴No);
