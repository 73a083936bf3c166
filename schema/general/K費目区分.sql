-- Expense classes. 区分 is the two-digit text that lines store and join on ('01'), running from
-- '01' without gaps, since the entry screen turns a list position into the code. Each class
-- brings its default tax inclusion class to the line.
CREATE TABLE K費目区分 (
    区分 text NOT NULL,
    名称 text,
    内税外税区分 text,
    PRIMARY KEY (区分)
);
