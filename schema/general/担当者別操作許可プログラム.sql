-- Rights of one operator for one program of one business menu. A row here replaces the
-- operator's rights of M担当者 for that program, and a NULL right counts as permitted.
CREATE TABLE 担当者別操作許可プログラム (
    担当者コード text NOT NULL,
    業務メニュ text NOT NULL,
    プログラムID text NOT NULL,
    操作許可 text,
    入力許可 text,
    修正許可 text,
    削除許可 text,
    印刷許可 text,
    プレビュ許可 text,
    テキスト出力許可 text,
    イメージ出力許可 text,
    PRIMARY KEY (担当者コード, 業務メニュ, プログラムID)
);
