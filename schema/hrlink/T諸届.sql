-- Notifications of employees. 諸届区分 '1' is a change of name, which overrides the name of
-- every other record from 諸届日付 on.
CREATE TABLE T諸届 (
    社員コード text,
    諸届日付 text,
    諸届区分 text,
    諸届No text,
    諸届氏名 text,
    諸届カナ氏名 text
);
CREATE INDEX T諸届_社員日付 ON T諸届 (社員コード, 諸届日付, 諸届No);
