-- How each document number of the suite runs. Counters are eight-digit zero-filled text and
-- are advanced by the programs, never by arithmetic in SQL. 連番種類 holds the sequence kind
-- as a digit ('0' for ever, '1' fiscal year, '2' month period, '3' day, other: typed by hand).
CREATE TABLE A番号情報 (
    番号ID text NOT NULL,
    名称 text,
    連番種類 text,
    連番 text,
    履歴連番 text,
    更新プログラム text,  -- file in prgbin started after a store, empty for none
    PRIMARY KEY (番号ID)
);
