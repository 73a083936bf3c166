#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <QString>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

// A text from the fuzzer's bytes: mostly UTF-8, so that the dictionaries' words arrive whole;
// sometimes raw UTF-16 units, so that lone surrogates and any code unit arrive too.
inline QString ファズ文字列(FuzzedDataProvider& 供給, size_t 最大 = 2048) {
    const bool 生 = 供給.ConsumeBool();
    const std::string b = 供給.ConsumeRandomLengthString(最大);
    if (!生) return QString::fromUtf8(b.data(), static_cast<qsizetype>(b.size()));
    QString s(static_cast<qsizetype>(b.size() / 2), Qt::Uninitialized);
    std::memcpy(s.data(), b.data(), (b.size() / 2) * 2);
    return s;
}

// The rest of the bytes as one text, in the same two ways.
inline QString ファズ残り文字列(FuzzedDataProvider& 供給) {
    return ファズ文字列(供給, 供給.remaining_bytes());
}

// A broken promise of the routine ends the run, so that libFuzzer keeps the input.
#define ファズ確認(条件)                                                                       \
    do {                                                                                       \
        if (!(条件)) {                                                                         \
            std::fprintf(stderr, "invariant failed: %s (%s:%d)\n", #条件, __FILE__, __LINE__); \
            std::abort();                                                                      \
        }                                                                                      \
    } while (0)
