-- Counters of never-ending sequences under per-office numbering.
CREATE TABLE A事業所別番号情報 (
    事業所コード text NOT NULL,
    番号ID text NOT NULL,
    連番 text,
    履歴連番 text,
    PRIMARY KEY (事業所コード, 番号ID)
);
