#pragma once

class 画面モデル;
struct 部品;

// The control the focus can go to after a pick: the wanted one when it can take the focus,
// otherwise the next in tab order that can. Null target or none found: the target stays.
部品* 次項目補正(const 画面モデル& 画面, 部品* 目標);
