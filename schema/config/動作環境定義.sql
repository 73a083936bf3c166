-- Settings of one workplace, always row '001'. The programs read the numbers by their numeric
-- value and write only the two code columns, so plain integers are enough.
CREATE TABLE 動作環境定義 (
    動作環境定義ID text NOT NULL,
    運用事業所コード text,
    インストール区分 smallint,  -- 0 shared folders, 1 per-user folders
    CL更新実行区分 smallint,
    バックアップ日付 text,
    運用条件切替日付 text,
    バックアップ方法 smallint,
    バックアップ日指定 smallint,
    月曜バックアップ smallint,
    火曜バックアップ smallint,
    水曜バックアップ smallint,
    木曜バックアップ smallint,
    金曜バックアップ smallint,
    土曜バックアップ smallint,
    日曜バックアップ smallint,
    バックアップ開始時刻 text,
    バックアップフォルダ text,
    起動担当者コード text,  -- the operator of this workplace
    PRIMARY KEY (動作環境定義ID)
);
