-- Counters of dated sequences under company numbering. A row is created on the first peek
-- of a new period, before anything is stored in it.
CREATE TABLE A期日別番号情報 (
    番号ID text NOT NULL,
    期日 text NOT NULL,
    連番 text,
    履歴連番 text,
    PRIMARY KEY (番号ID, 期日)
);
