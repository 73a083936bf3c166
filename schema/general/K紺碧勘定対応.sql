-- The ledger account of each expense class, for the journal export of 紺碧帳出力. 費目区分 is
-- the two-digit code of K費目区分; 非課税区分 is what a line without tax is in the ledger:
-- '対象外' (outside the tax) or '非課税' (exempt).
CREATE TABLE K紺碧勘定対応 (
    費目区分 text NOT NULL,
    勘定科目 text,
    補助科目 text,
    非課税区分 text,
    PRIMARY KEY (費目区分)
);
