-- Posts.
CREATE TABLE M役職 (
    コード text NOT NULL,
    名称 text,
    PRIMARY KEY (コード)
);
