-- Departments. 稼動状況区分 is compared with a quoted list position of K稼動状況区分, so it is a digit text.
CREATE TABLE M部門 (
    コード text NOT NULL,
    名称 text,
    稼動状況区分 text,
    PRIMARY KEY (コード)
);
