#include "screen/frm紺碧帳.h"

void frm紺碧帳::明細離脱(部品&) {}
bool frm紺碧帳::費目区分確定(int, int) { return false; }
bool frm紺碧帳::内税外税区分確定(int, int) { return false; }
bool frm紺碧帳::消費税率確定(int, const 金額&) { return false; }
bool frm紺碧帳::出金金額確定(int, const 金額&) { return false; }
bool frm紺碧帳::出金消費税確定(int, const 金額&) { return false; }
bool frm紺碧帳::支払先確定(int, const QString&) { return false; }
bool frm紺碧帳::課税事業所区分確定(int, int) { return false; }
bool frm紺碧帳::摘要確定(int, const QString&) { return false; }
void frm紺碧帳::明細行表示(int, int) {}
void frm紺碧帳::行クリア() {}
void frm紺碧帳::行挿入() {}
void frm紺碧帳::行複写() {}
void frm紺碧帳::摘要一覧(int) {}
void frm紺碧帳::行を写す(int, int) {}
