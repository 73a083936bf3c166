#pragma once

#include <QLockFile>
#include <QString>
#include <memory>

// Every run marks itself, for its whole life, in a folder of its own user and program folder:
// one lock file named by the process id. A hand start asks whether any other mark there is still
// held by a live process.
class 二重起動検査 {
  public:
    // Takes this process's mark at once; it is held as long as the object lives.
    二重起動検査(const QString& ロックフォルダ, const QString& プログラムフォルダ,
                 const QString& 利用者);
    // Marks left by ended processes are removed on the way.
    bool 他に起動中();

  private:
    QString 印フォルダ;
    QString 自分の印;
    std::unique_ptr<QLockFile> ロック;
};
