-- Employees of the HR system. 社員区分 and 在籍区分 are digit texts like those of M担当者, and the
-- three 採用 columns point at the hiring record in T採用.
CREATE TABLE M社員 (
    コード text NOT NULL,
    氏名 text,
    カナ text,
    事業所コード text,
    部門コード text,
    セクションコード text,
    役職コード text,
    職責 text,
    就業形態コード text,
    社員区分 text,
    在籍区分 text,
    採用事業所コード text,
    採用番号基準日付 text,
    採用No text,
    PRIMARY KEY (コード)
);
