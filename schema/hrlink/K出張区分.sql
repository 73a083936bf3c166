-- Kinds of business trip.
CREATE TABLE K出張区分 (
    区分 text NOT NULL,
    名称 text,
    PRIMARY KEY (区分)
);
