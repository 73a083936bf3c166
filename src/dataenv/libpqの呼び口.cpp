#include "dataenv/libpqの呼び口.h"

#include <dlfcn.h>

#include <mutex>

namespace {

template <class F>
bool 取る(void* 庫, F& 先, const char* 名) {
    先 = reinterpret_cast<F>(dlsym(庫, 名));
    return 先 != nullptr;
}

bool 揃える(libpqの呼び口& p) {
    // Only a copy already loaded: the driver's, whose handles we are given.
    void* 庫 = dlopen("libpq.so.5", RTLD_LAZY | RTLD_NOLOAD);
    if (庫 == nullptr) return false;
#define KONPEKI_取る(名) 取る(庫, p.名, #名)
    return KONPEKI_取る(PQstatus) && KONPEKI_取る(PQerrorMessage) &&
           KONPEKI_取る(PQtransactionStatus) && KONPEKI_取る(PQenterPipelineMode) &&
           KONPEKI_取る(PQexitPipelineMode) && KONPEKI_取る(PQpipelineSync) &&
           KONPEKI_取る(PQsendQueryParams) && KONPEKI_取る(PQsendPrepare) &&
           KONPEKI_取る(PQsendQueryPrepared) && KONPEKI_取る(PQgetResult) &&
           KONPEKI_取る(PQresultStatus) && KONPEKI_取る(PQresultErrorField) &&
           KONPEKI_取る(PQresultErrorMessage) && KONPEKI_取る(PQclear);
#undef KONPEKI_取る
}

}  // namespace

const libpqの呼び口* libpqの呼び口を得る() {
    static std::mutex 錠;
    static libpqの呼び口 呼び口;
    static bool 揃った = false;
    // A failure is not kept: the library may be loaded by the next connection.
    const std::lock_guard 守り(錠);
    if (!揃った) 揃った = 揃える(呼び口);
    return 揃った ? &呼び口 : nullptr;
}
