#pragma once

#include "dataenv/データ接続.h"
#include "dataenv/環境情報.h"

// Copies the current row of データベース定義 into the values; false when db or dbmw is Null,
// which the suite treats as a failed read. Other Null columns leave their values alone.
bool データベース定義を写す(const 記録集合& rs, データベース定義値& 値);

// How the general database of such a definition is reached; false for an engine code that
// opens nothing.
bool 業務DB接続先(const データベース定義値& 値, 接続先& 先);
