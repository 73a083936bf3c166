#include "ledger/端末プラットフォーム.h"

#include <cstdio>

応答 端末プラットフォーム::メッセージ表示(const メッセージ指定& 指定) {
    std::fputs((指定.本文 + u'\n').toLocal8Bit().constData(), stderr);
    return 応答::OK;
}
