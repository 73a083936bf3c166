-- Schedule rows of the sales activity program. A row may point at a disbursement slip through
-- the three 出金 columns, which the slip program moves or empties when the slip changes key.
CREATE TABLE T営業活動明細 (
    担当者コード text,
    日付 text,
    開始時刻 text,
    終了時刻 text,
    件名 text,
    内容 text,
    出金事業所コード text,
    出金番号基準日付 text,
    出金No text,
    ユーザID text,
    登録日付 text,
    更新日付 text
);
-- Updates address a row by these four
CREATE INDEX T営業活動明細_日程キー ON T営業活動明細 (担当者コード, 日付, 開始時刻, 終了時刻);
-- Is a slip linked from the schedule
CREATE INDEX T営業活動明細_出金伝票 ON T営業活動明細 (出金事業所コード, 出金番号基準日付, 出金No);
