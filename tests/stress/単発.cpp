#include <QDateTime>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <string>

#include "common/伝票打鍵者.h"
#include "ストレス.h"

int 単発実行(const QString& プログラムフォルダ, const QString& 動作, const QString& 点) {
    伝票打鍵者 人(プログラムフォルダ);
    if (!人.開く()) return 3;
    if (動作 == u"kill" || 動作 == u"probe") {
        // One slip stored whole first, then the one stopped at the point: killed, nothing
        // cleaned up.
        人.新規(u"前"_qs, 2);
        if (動作 == u"kill") {
            人.基盤.着いた時 = [] { std::raise(SIGKILL); };
            人.基盤.点 = 点;
        } else {
            // Each read of the clock tells what the store has written so far, as its own batch
            // sees it, and the rows of the run history.
            人.基盤.毎回 = [&人](int n) {
                QStringList 数;
                for (const char16_t* 表 :
                     {u"T出金", u"T出金明細", u"R出金", u"R出金明細", u"未集計情報"}) {
                    記録集合 rs;
                    if (人.s.データ.接続().業務DB検索(
                            rs, u"SELECT COUNT(*) AS n FROM "_qs + QString::fromUtf16(表))) {
                        数 << QString::fromUtf16(表) + u" "_qs + rs.文字列(u"n"_qs);
                    }
                    rs.閉じる();
                }
                記録集合 rs;
                if (人.s.データ.接続().環境DB検索(
                        rs, u"SELECT COUNT(*) AS n FROM プログラム稼動履歴"_qs))
                    数 << u"run history "_qs + rs.文字列(u"n"_qs);
                rs.閉じる();
                std::fprintf(stderr, "read %d: %s\n", n, qPrintable(数.join(u", "_qs)));
            };
        }
        人.新規(u"後"_qs, 3);
        人.基盤.毎回 = nullptr;
        if (動作 == u"probe") std::printf("%d\n", 人.基盤.読数);
    } else if (動作 == u"hold") {
        人.基盤.着いた時 = [] {
            std::printf("IN\n");
            std::fflush(stdout);
            std::string 行;
            std::getline(std::cin, 行);
        };
        人.基盤.点 = 点;
        人.新規(u"待"_qs, 2);
    } else if (動作 == u"browse") {
        for (int i = 0; i < 点.toInt(); ++i) 人.見る(u"00000001"_qs);
    } else if (動作 == u"delete") {
        人.削除(点);
    } else {
        return 2;
    }
    人.閉じる();
    std::printf("DONE\n");
    return 0;
}
