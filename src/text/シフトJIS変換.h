#pragma once

#include <QByteArray>
#include <QString>

// Text into CP932, the Shift-JIS of Windows, through one conversion table held open for many
// texts. When a character has no CP932 form the answer is False and 不可位置 is its place in
// the text (UTF-16 units); nothing is ever replaced by "?".
class CP932変換器 {
  public:
    CP932変換器();
    ~CP932変換器();
    CP932変換器(const CP932変換器&) = delete;
    CP932変換器& operator=(const CP932変換器&) = delete;

    // Appends the bytes of the text to 出力; on False 出力 is as it was.
    bool 追加(const QString& 文字列, QByteArray& 出力, qsizetype& 不可位置);
    // Whether the system has the CP932 table at all.
    bool 表あり() const;
    // The CP932 bytes of one UTF-16 unit, or -1 when CP932 has no form for it.
    int 単位のバイト数(char16_t 単位);

  private:
    void* 変換;  // iconv_t
};
