-- Tax inclusion classes: '0' no tax, '1' tax added on top, '2' tax included. The screen takes
-- the list position, counted from 0, as the code.
CREATE TABLE K内税外税区分 (
    区分 text NOT NULL,
    名称 text,
    PRIMARY KEY (区分)
);
