-- Consumption tax rates, one row per change of rate, found by the latest 施行日 on or before
-- a date. 税率区分 '1' opens a period in which the rate of the row before stays in use
-- beside it as the reduced rate.
CREATE TABLE G消費税 (
    施行日 text NOT NULL,
    税率区分 text,
    消費税率 numeric(19,4),  -- percent, 10% is 10
    PRIMARY KEY (施行日)
);
