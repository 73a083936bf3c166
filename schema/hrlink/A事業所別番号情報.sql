-- Counters of never-ending sequences under per-office numbering. The HR system copies the
-- name and sequence kind of the number into each office row, and reads the kind from here.
CREATE TABLE A事業所別番号情報 (
    事業所コード text NOT NULL,
    番号ID text NOT NULL,
    名称 text,
    連番種類 text,
    連番 text,
    履歴連番 text,
    PRIMARY KEY (事業所コード, 番号ID)
);
