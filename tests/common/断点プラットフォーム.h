#pragma once

#include <QDateTime>
#include <functional>

#include "text/台本プラットフォーム.h"

// The scripted platform with a point inside a store where something happens to the process or
// its surroundings. The points are the waiting window's show ("before": no statement of the
// store has run), each read of the clock while the window is up ("1", "2", ...: the store reads
// it for the stamp of every row), and the window's hide ("after": committed and cleared).
class 断点プラットフォーム : public 台本プラットフォーム {
  public:
    QString 点;
    std::function<void()> 着いた時;  // runs once when the store reaches the point
    mutable int 読数 = 0;            // clock reads of the last store
    std::function<void(int)> 毎回;   // runs at every read of the clock in a store

    void お待ち表示(bool 表示) override {
        台本プラットフォーム::お待ち表示(表示);
        if (表示) {
            店中 = true;
            読数 = 0;
            if (点 == u"before") 着く();
        } else {
            店中 = false;
            if (点 == u"after") 着く();
        }
    }
    QDateTime 現在時刻() const override {
        if (店中) {
            ++読数;
            if (毎回) {
                // The look may read the clock itself; that read does not count.
                const auto f = 毎回;
                店中 = false;
                f(読数);
                店中 = true;
            }
            if (QString::number(読数) == 点) 着く();
        }
        return 台本プラットフォーム::現在時刻();
    }

  private:
    void 着く() const {
        if (!着いた時) return;
        const auto f = 着いた時;
        f();
    }
    mutable bool 店中 = false;
};
