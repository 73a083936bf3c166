-- Where the general database is and how to reach it. Only the 'GNR' row is used, and the tree
-- builder fills in db and the connection values for the tree it creates.
CREATE TABLE データベース定義 (
    情報種類 text NOT NULL,
    db text,  -- 'A' SQLite file, 'P' PostgreSQL, 'S' SQL Server, 'O' Oracle
    dbmw text,
    ドライバ名 text,
    データベース名 text,
    サーバー名 text,
    接続文字列 text,
    ユーザーID text,
    パスワード text,
    プロバイダ名 text,
    データソース名 text,
    PRIMARY KEY (情報種類)
);
