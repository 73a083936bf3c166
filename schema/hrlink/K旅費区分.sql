-- Kinds of trip expense, each with the expense class (two-digit text as in K費目区分) that an
-- imported line takes.
CREATE TABLE K旅費区分 (
    区分 text NOT NULL,
    名称 text,
    費目区分 text,
    PRIMARY KEY (区分)
);
