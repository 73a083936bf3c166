#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "lists/一覧画面.h"

// Every list window of the program, made once with the entry screen and shown by name through
// the platform, which runs their loads and their closes by the frame.
class 一覧画面集 {
  public:
    一覧画面集(出金セッション& s, 画面モデル& 主画面);
    一覧画面集(const 一覧画面集&) = delete;
    一覧画面集& operator=(const 一覧画面集&) = delete;

    一覧画面* 探す(const QString& 名前) const;
    一覧画面& operator()(const QString& 名前) const { return *探す(名前); }
    const std::vector<std::unique_ptr<一覧画面>>& 全部() const { return 群; }

  private:
    std::vector<std::unique_ptr<一覧画面>> 群;
};
