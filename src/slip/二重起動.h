#pragma once

#include <QLockFile>
#include <QString>
#include <memory>

// Tells whether this program is already running for this user from the same program folder.
// The lock is held for the life of the object, so for the life of the process.
class 二重起動検査 {
  public:
    二重起動検査(const QString& ロックフォルダ, const QString& プログラムフォルダ,
                 const QString& 利用者);
    bool 他に起動中();

  private:
    std::unique_ptr<QLockFile> ロック;
};
