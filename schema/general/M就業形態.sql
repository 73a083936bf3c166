-- Forms of employment.
CREATE TABLE M就業形態 (
    コード text NOT NULL,
    名称 text,
    PRIMARY KEY (コード)
);
