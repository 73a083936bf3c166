-- The business menu 翠嶺: one row per program. 処理分類 picks the class rights of M担当者 that
-- apply when an operator has no row of his own for the program, and the 条件項目名 columns name
-- the key columns of a program so that siblings can link to it.
CREATE TABLE 翠嶺 (
    プログラムID text NOT NULL,
    プログラム名 text,
    処理分類 smallint,  -- 0 to 9
    条件項目名A text,
    条件項目名B text,
    条件項目名C text,
    条件項目名D text,
    条件項目名E text,
    条件項目名F text,
    条件項目名G text,
    条件項目名H text,
    条件項目名I text,
    条件項目名J text,
    条件項目名K text,
    条件項目名L text,
    条件項目名M text,
    条件項目名N text,
    条件項目名O text,
    条件項目名P text,
    条件項目名Q text,
    条件項目名R text,
    条件項目名S text,
    条件項目名T text,
    条件項目名U text,
    条件項目名V text,
    条件項目名W text,
    条件項目名X text,
    条件項目名Y text,
    条件項目名Z text,
    PRIMARY KEY (プログラムID)
);
