#pragma once

#include <libpq-fe.h>

// The calls of PostgreSQL's client library that Qt does not offer, taken from the copy that Qt's
// PostgreSQL driver has loaded: a program that works on SQLite alone then never maps the library
// and what it brings (OpenSSL, Kerberos, LDAP), and the connection handle the driver gives is
// always used with the library that made it.
struct libpqの呼び口 {
    decltype(&::PQstatus) PQstatus;
    decltype(&::PQerrorMessage) PQerrorMessage;
    decltype(&::PQtransactionStatus) PQtransactionStatus;
    decltype(&::PQenterPipelineMode) PQenterPipelineMode;
    decltype(&::PQexitPipelineMode) PQexitPipelineMode;
    decltype(&::PQpipelineSync) PQpipelineSync;
    decltype(&::PQsendQueryParams) PQsendQueryParams;
    decltype(&::PQsendPrepare) PQsendPrepare;
    decltype(&::PQsendQueryPrepared) PQsendQueryPrepared;
    decltype(&::PQgetResult) PQgetResult;
    decltype(&::PQresultStatus) PQresultStatus;
    decltype(&::PQresultErrorField) PQresultErrorField;
    decltype(&::PQresultErrorMessage) PQresultErrorMessage;
    decltype(&::PQclear) PQclear;
};

// Null while no PostgreSQL connection has loaded the library, or when it lacks a call.
const libpqの呼び口* libpqの呼び口を得る();
