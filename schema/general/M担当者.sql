-- Staff who operate the suite. 在籍区分 and 社員区分 are one-digit texts because the list
-- windows compare them with quoted list positions. Rights hold '0' or empty for permitted and
-- anything else for refused.
CREATE TABLE M担当者 (
    コード text NOT NULL,
    氏名 text,
    カナ text,
    事業所コード text,
    部門コード text,
    セクションコード text,
    役職コード text,
    社員区分 text,
    在籍区分 text,  -- '0' in service, '1' left
    退社日付 text,  -- yyyymmdd, empty while in service
    ログインID text,  -- operating system user name, for the PIN window
    暗証番号 text,  -- stored scrambled
    アクセス権限 smallint,  -- 6 may store slips outside the open fiscal period
    処理分類0操作許可 text,
    処理分類1操作許可 text,
    処理分類2操作許可 text,
    処理分類3操作許可 text,
    処理分類4操作許可 text,
    処理分類5操作許可 text,
    処理分類6操作許可 text,
    処理分類7操作許可 text,
    処理分類8操作許可 text,
    処理分類9操作許可 text,
    操作許可 text,
    入力許可 text,
    修正許可 text,
    削除許可 text,
    印刷許可 text,
    プレビュ許可 text,
    テキスト出力許可 text,
    イメージ出力許可 text,
    PRIMARY KEY (コード)
);
-- The PIN window finds the operator by user name
CREATE INDEX M担当者_ログインID ON M担当者 (ログインID);
-- The staff list's name and kana searches read in these orders
CREATE INDEX M担当者_氏名 ON M担当者 (氏名);
CREATE INDEX M担当者_カナ ON M担当者 (カナ);
