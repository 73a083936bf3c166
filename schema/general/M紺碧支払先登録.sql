-- Invoice registration of payees, by the payee's name as typed on slip lines (支払先). A payee
-- may have several periods; 有効終了日 empty is open-ended. Dates are "yyyymmdd".
CREATE TABLE M紺碧支払先登録 (
    支払先 text NOT NULL,
    有効開始日 text NOT NULL,
    有効終了日 text,
    登録番号 text,
    登録名称 text,
    PRIMARY KEY (支払先, 有効開始日)
);
