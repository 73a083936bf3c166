-- Queue for the aggregation program: one row per history row of a store, only ever appended.
-- No key: the reader alone decides what a repeated row means.
-- Here the queue receives the rows of a company that starts its update program after each
-- store (更新実行区分 0). Otherwise they go to the general database.
CREATE TABLE 未集計情報 (
    事業所コード text,
    番号ID text,
    番号基準日付 text,
    履歴No text,
    赤黒区分 text,
    伝票No text,
    追加キー項目 text,
    データフラグ text,
    登録情報区分 text,
    予備項目 text
);
CREATE INDEX 未集計情報_伝票 ON 未集計情報 (番号ID, 事業所コード, 番号基準日付, 履歴No);
-- The aggregation program polls for unprocessed rows
CREATE INDEX 未集計情報_データフラグ ON 未集計情報 (データフラグ);
