#pragma once

#include <QString>

// Turns a stored PIN into plain text. The whole suite shares one implementation; the stored
// form of this installation is described in the README.
class 暗証解読部品 {
  public:
    virtual ~暗証解読部品() = default;
    virtual QString 解読(const QString& 格納値) const = 0;
};

// PINs stored as they are typed.
class 平文暗証解読 : public 暗証解読部品 {
  public:
    QString 解読(const QString& 格納値) const override { return 格納値; }
};
