-- Class list of a list window. 区分 counts up from '0' without gaps, because the window
-- compares the position in the list with the class column.
CREATE TABLE K社員区分 (
    区分 text NOT NULL,
    名称 text,
    PRIMARY KEY (区分)
);
