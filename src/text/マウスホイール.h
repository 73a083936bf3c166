#pragma once

// Restores the window procedure saved at start; nothing is ever replaced in this program, so
// the wheel is left to the platform and there is nothing to undo.
bool ウィンドウプロシージャ復元();
