-- Transfers, each with the picture after (異動) and before (前) it. The state of an employee on
-- a day is the latest transfer up to that day, or the before-picture of the first one after it.
CREATE TABLE T異動 (
    社員コード text,
    異動No text,
    異動日付 text,
    異動事業所コード text,
    異動部門コード text,
    異動セクションコード text,
    異動役職コード text,
    異動職責 text,
    異動就業形態コード text,
    異動社員区分 text,
    前事業所コード text,
    前部門コード text,
    前セクションコード text,
    前役職コード text,
    前職責 text,
    前就業形態コード text,
    前社員区分 text
);
CREATE INDEX T異動_社員日付 ON T異動 (社員コード, 異動日付, 異動No);
