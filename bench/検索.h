#pragma once

// The slip search on 1 million slips: a month, an amount range and a payee, and the searches
// around it, from the button press to the rows in the window's model, against the same
// statement read raw; on SQLite, and on the PostgreSQL server of KONPEKI_TEST_PG when given.
void 検索計測();
