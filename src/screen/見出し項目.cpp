#include "screen/frm紺碧帳.h"

void frm紺碧帳::見出し離脱(部品&) {}
bool frm紺碧帳::出金日付更新(int, const QString&) { return false; }
bool frm紺碧帳::担当者確定(const QString&) { return false; }
bool frm紺碧帳::部門確定(const QString&) { return false; }
bool frm紺碧帳::セクション確定(const QString&) { return false; }
bool frm紺碧帳::備考確定(int, const QString&) { return false; }
void frm紺碧帳::一覧を開く(const QString&) {}
