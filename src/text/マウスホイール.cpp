#include "text/マウスホイール.h"

bool ウィンドウプロシージャ復元() {
    return true;
}
