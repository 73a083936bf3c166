-- Expense rows of a business-trip application, in 旅費行No order.
CREATE TABLE T出張旅費 (
    事業所コード text,
    番号基準日付 text,
    出張申請No text,
    旅費行No text,
    旅費区分 text,
    旅費摘要 text,
    旅費金額 numeric(19,4)
);
CREATE INDEX T出張旅費_申請行順 ON T出張旅費 (事業所コード, 番号基準日付, 出張申請No, 旅費行No);
