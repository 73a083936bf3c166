#pragma once

#include "dataenv/会社情報.h"
#include "dataenv/暗証解読部品.h"

class 接続環境;

// The company settings, read once after the general database opened: the company row, the
// working office, the number of branch offices and the slots of the other business systems.
class 会社環境 {
  public:
    explicit 会社環境(接続環境& 接続);
    会社環境(const 会社環境&) = delete;
    会社環境& operator=(const 会社環境&) = delete;

    const 会社情報& 会社() const { return 会社_; }
    // Values of the company row put in by hand, as a test needs them, over those read.
    template <class 変更>
    void 会社変更(変更 f) {
        f(会社_);
    }
    const 事業所情報& 事業所() const { return 事業所_; }
    short 事業所件数() const { return 事業所件数_; }
    const 他業務連携情報& 他業務連携() const { return 他業務連携_; }
    // 暗証番号有無 in force: 1 asks PINs and enforces the rights.
    short 暗証番号要否() const { return 暗証番号要否_; }
    const 暗証解読部品& 暗証解読() const { return *暗証解読_; }

    bool 基本項目読込();
    void 事業所情報読込();
    void 他業務連携読込();

  private:
    接続環境& 接続;
    会社情報 会社_;
    事業所情報 事業所_;
    short 事業所件数_ = 0;
    他業務連携情報 他業務連携_;
    short 暗証番号要否_ = 0;
    平文暗証解読 平文解読;
    const 暗証解読部品* 暗証解読_ = &平文解読;
};
