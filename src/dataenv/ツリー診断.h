#pragma once

#include <QString>

// Whether the folder tree of a run is there and open to its user, and where it really stands:
// a tree whose conf is a link (the installed programs') stands where the link points.
enum class ツリー状態 { 使える, 無い, 読めない };

struct ツリー診断結果 {
    ツリー状態 状態 = ツリー状態::使える;
    QString フォルダ;
};
