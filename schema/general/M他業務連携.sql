-- Links to other business systems of the company, one row per system code. The row whose
-- 業務名 is 白樺 with 連携有無区分 1 switches on the HR link.
CREATE TABLE M他業務連携 (
    コード text NOT NULL,
    業務名 text,
    連携有無区分 smallint,
    連携DB text,
    連携DBMW text,
    連携データソース名 text,
    連携ドライバ名 text,
    連携接続文字列 text,
    連携データベース名 text,
    連携サーバー名 text,
    連携ユーザーID text,
    連携パスワード text,
    連携アプリフォルダ text,
    顧客更新有無区分 smallint,
    得意先更新有無区分 smallint,
    納品先更新有無区分 smallint,
    仕入先更新有無区分 smallint,
    メーカ更新有無区分 smallint,
    対応先更新有無区分 smallint,
    商品更新有無区分 smallint,
    社員更新有無区分 smallint,
    PRIMARY KEY (コード)
);
