-- The tables of a levelling job database.
--
-- Heights and height differences are metres, distances kilometres. Key texts are compared without their trailing
-- blanks, hence COLLATE RTRIM; numbers are held as REAL in some columns and as TEXT in others, as the programs of the
-- survey suite left them.
--
-- The index over a route has SaveOrder before DataKubun: a route is read in the order of SaveOrder, with its category
-- or without one, and results are joined to observations by SaveOrder alone as well as together with the category.
-- SaveOrder is a number, yet declared with the collation of the texts: only so can a join that compares every key
-- without trailing blanks walk the index.

-- ---------------------------------------------------------------------------------------------- jobs and folders

CREATE TABLE JobData (
  JobId      TEXT COLLATE RTRIM NOT NULL,  -- job identifier
  作業名     TEXT,                         -- title of the survey
  Tokyu      INTEGER,                      -- grade; 1 = first grade
  JikkouFlg  INTEGER                       -- 1: the job chosen for execution
);

CREATE TABLE A_ExePath (
  Exe_Dir  TEXT                            -- data folder, ends in "\"
);

-- ------------------------------------------------------------------------------------------------- observations

-- One record per bench mark of a route, with the section that starts there.
CREATE TABLE KansokuSeikaData (
  JobId            TEXT COLLATE RTRIM NOT NULL,
  事業番号         TEXT COLLATE RTRIM,     -- project number
  路線番号         TEXT COLLATE RTRIM,     -- route number, 8 characters; 3 to 6 name its family
  DataKubun        TEXT(1) COLLATE RTRIM,  -- data category, "0" to "4"
  SaveOrder        INTEGER COLLATE RTRIM,  -- order along the route
  標石番号         TEXT COLLATE RTRIM,     -- bench-mark number
  都道府県         TEXT,
  郡市             TEXT,
  町村             TEXT,
  観測年月日       TEXT(10),               -- YYYYMMDD or YYYY/MM/DD
  距離             REAL,                   -- of the section
  中数             REAL,                   -- mean height difference of the section
  前回観測日       TEXT(10),               -- the epoch before
  前回中数         REAL,
  標高             TEXT,                   -- known height
  備考             TEXT,
  RosenEndDataFlg  TEXT(2) COLLATE RTRIM   -- "-1" last bench mark of a route, "-2" observed a second time
);
CREATE INDEX KansokuSeikaDataRoute ON KansokuSeikaData (JobId, 事業番号, 路線番号, SaveOrder, DataKubun);

-- The forward and backward runs of each section.
CREATE TABLE KansokuData (
  JobId        TEXT COLLATE RTRIM NOT NULL,
  事業番号     TEXT COLLATE RTRIM,
  路線番号     TEXT COLLATE RTRIM,
  DataKubun    TEXT(1) COLLATE RTRIM,
  SaveOrder    INTEGER COLLATE RTRIM,
  自標石番号   TEXT COLLATE RTRIM,         -- start of the section
  至標石番号   TEXT COLLATE RTRIM,         -- its end
  観測年月日   TEXT(10),
  距離         REAL,
  往観測比高   REAL,                       -- forward run
  復観測比高   REAL                        -- backward run, from the end to the start
);
CREATE INDEX KansokuDataRoute ON KansokuData (JobId, 事業番号, 路線番号, SaveOrder, DataKubun);

-- The heading of a job's printed pages; names are found in the three lists below.
CREATE TABLE EditTextData (
  JobId       TEXT COLLATE RTRIM NOT NULL,
  作業名      TEXT,
  計画機関名  TEXT,
  作業機関名  TEXT,
  作業地域    TEXT,
  観測者No    INTEGER,
  器械No      INTEGER,
  標尺No      INTEGER
);

CREATE TABLE ComKansokushameiMst (
  JobId     TEXT COLLATE RTRIM NOT NULL,
  観測者No  INTEGER,
  観測者名  TEXT
);

CREATE TABLE ComShiyouKIkaimeiMst (
  JobId     TEXT COLLATE RTRIM NOT NULL,
  器械No    INTEGER,
  器械名    TEXT,
  器械番号  TEXT
);

CREATE TABLE ComShiyouHyoushakuMeiMst (
  JobId     TEXT COLLATE RTRIM NOT NULL,
  標尺No    INTEGER,
  標尺名    TEXT,
  標尺番号  TEXT
);

-- ---------------------------------------------------------------------------------------- orthometric correction

CREATE TABLE KansokuSeikaDataSeihyou (
  JobId            TEXT COLLATE RTRIM NOT NULL,
  事業番号         TEXT COLLATE RTRIM,
  路線番号         TEXT COLLATE RTRIM,
  DataKubun        TEXT(1) COLLATE RTRIM,
  SaveOrder        INTEGER COLLATE RTRIM,
  水準点番号       TEXT COLLATE RTRIM,
  標高             REAL,
  備考1            TEXT,
  備考2            TEXT,
  RosenEndDataFlg  TEXT(2) COLLATE RTRIM,
  中数             REAL,
  正標高補正数     REAL,                   -- mm; 0.1 mm in first grade
  正標高結果       REAL
);
CREATE INDEX KansokuSeikaDataSeihyouRoute
  ON KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, SaveOrder, DataKubun);

-- ---------------------------------------------------------------------------------------- ellipsoidal correction

CREATE TABLE KansokuSeikaDataDaen (
  JobId            TEXT COLLATE RTRIM NOT NULL,
  SaveOrder        INTEGER COLLATE RTRIM,
  事業番号         TEXT COLLATE RTRIM,
  路線番号         TEXT COLLATE RTRIM,
  標石番号         TEXT COLLATE RTRIM,
  距離             TEXT,
  楕円補正値       TEXT,                   -- mm
  標高             TEXT,
  楕円補正結果     TEXT,
  備考1            TEXT,
  備考2            TEXT,
  DataKubun        TEXT(1) COLLATE RTRIM,
  RosenEndDataFlg  TEXT(2) COLLATE RTRIM
);
CREATE INDEX KansokuSeikaDataDaenRoute ON KansokuSeikaDataDaen (JobId, 事業番号, 路線番号, SaveOrder, DataKubun);

-- One record per computed section; latitudes in minutes.
CREATE TABLE DaenHoseiChiHyouData (
  JobId         TEXT COLLATE RTRIM NOT NULL,
  SaveOrder     INTEGER COLLATE RTRIM,
  事業番号      TEXT COLLATE RTRIM,
  路線番号      TEXT COLLATE RTRIM,
  自首末地      TEXT,                      -- latitude of the start, degrees and minutes
  至首末地      TEXT,                      -- latitude of the end
  自水準点番号  TEXT,
  至水準点番号  TEXT,
  B1            REAL,
  B2            REAL,
  B1_B2         REAL,                      -- difference of the latitudes
  B1plusB2      REAL,                      -- sum of the latitudes
  k             REAL,                      -- accumulated correction at the end, mm
  H             REAL,                      -- mean height, m
  CalK          REAL,                      -- correction of the section, mm
  DataKubun     TEXT(1) COLLATE RTRIM
);
CREATE INDEX DaenHoseiChiHyouDataRoute ON DaenHoseiChiHyouData (JobId, 事業番号, 路線番号, SaveOrder, DataKubun);

-- ------------------------------------------------------------------------------------------ variation correction

CREATE TABLE KansokuSeikaDataHend (
  JobId                       TEXT COLLATE RTRIM NOT NULL,
  SaveOrder                   INTEGER COLLATE RTRIM,
  事業番号                    TEXT COLLATE RTRIM,
  路線番号                    TEXT COLLATE RTRIM,
  標石番号                    TEXT COLLATE RTRIM,
  基準観測日                  TEXT(10),
  DataKubun                   TEXT(1) COLLATE RTRIM,
  RosenEndDataFlg             TEXT(2) COLLATE RTRIM,
  新観測年月日                TEXT(10),
  新観測比高                  TEXT,
  旧測年月日                  TEXT(10),
  旧観測比高                  TEXT,
  比高差                      TEXT,
  新_旧経過日数               INTEGER,
  日毎比高変化                TEXT,        -- m per day
  基準_新経過日数             INTEGER,
  変動補正量                  TEXT,
  変動補正結果                TEXT,
  備考1                       TEXT,
  備考2                       TEXT,
  新設点BrankFlg              INTEGER,     -- -1 or 0
  新設点Flg                   INTEGER,     -- -1 or 0
  新設点用変動補正量          TEXT,
  新設点用新観測比高          TEXT,
  新設点用旧測年月日          TEXT(10),
  新設点用旧観測比高          TEXT,
  新設点用比高差              TEXT,
  新設点用新_旧経過日数       INTEGER,
  新設点用基準_新経過日数     INTEGER,
  新設点用日毎比高変化        TEXT,
  新設点用変動補正結果        TEXT,
  新設点用平均_新観測年月日   TEXT(10)
);
CREATE INDEX KansokuSeikaDataHendRoute ON KansokuSeikaDataHend (JobId, 事業番号, 路線番号, SaveOrder, DataKubun);

CREATE TABLE HendHoseiChiHyouData (
  JobId         TEXT COLLATE RTRIM NOT NULL,
  SaveOrder     INTEGER COLLATE RTRIM,
  事業番号      TEXT COLLATE RTRIM,
  路線番号      TEXT COLLATE RTRIM,
  DataKubun     TEXT(1) COLLATE RTRIM,
  自水準点番号  TEXT,
  至水準点番号  TEXT,
  基準観測日    TEXT(10),
  変動補正量    REAL
);

-- -------------------------------------------------------------------------------- closure error of a single route

CREATE TABLE KansokuSeikaDataTanrosen (
  JobId            TEXT COLLATE RTRIM NOT NULL,
  事業番号         TEXT COLLATE RTRIM,
  路線番号         TEXT COLLATE RTRIM,
  DataKubun        TEXT(1) COLLATE RTRIM,
  SaveOrder        INTEGER COLLATE RTRIM,
  水準点番号       TEXT COLLATE RTRIM,
  距離             REAL,
  標高             REAL,
  単路線補正数     REAL,                   -- mm; 0.1 mm in first grade
  単路線補正結果   REAL,
  備考1            TEXT,
  備考2            TEXT,
  RosenEndDataFlg  TEXT(2) COLLATE RTRIM,
  中数             REAL
);
CREATE INDEX KansokuSeikaDataTanrosenRoute
  ON KansokuSeikaDataTanrosen (JobId, 事業番号, 路線番号, SaveOrder, DataKubun);

-- ------------------------------------------------------------------------------------------------ variation books

-- One record per bench mark of a book. Databases of this age have no column for the mark of a route end yet: the
-- program adds RosenEndFlg when it first opens them.
CREATE TABLE KansokuSeikaDataHKSNB (
  JobId           TEXT COLLATE RTRIM NOT NULL,
  SaveOrder       INTEGER COLLATE RTRIM,
  事業番号        TEXT COLLATE RTRIM,
  路線番号        TEXT COLLATE RTRIM,
  変動観測簿No    TEXT COLLATE RTRIM,      -- book number
  補正値フラグ    TEXT(1) COLLATE RTRIM,   -- "0" orthometric book, "1" ellipsoidal book
  都道府県        TEXT,
  郡市            TEXT,
  町村            TEXT,
  水準点番号      TEXT COLLATE RTRIM,
  観測比高        TEXT,
  今回観測成果    TEXT,
  前回観測成果    TEXT,
  今回中数        TEXT,
  正標高補正値    TEXT,
  正標高補正結果  TEXT,
  変動量          TEXT,                    -- mm
  備考1           TEXT,
  備考2           TEXT,
  今回観測日付    TEXT,
  前回観測日付    TEXT
);
CREATE INDEX KansokuSeikaDataHKSNBBook ON KansokuSeikaDataHKSNB (JobId, 補正値フラグ, 変動観測簿No, SaveOrder);

-- The observation periods of a book. Records are inserted without a list of columns: exactly these seven, in this
-- order.
CREATE TABLE KansokuKikan (
  JobId           TEXT COLLATE RTRIM,
  観測簿種類      TEXT COLLATE RTRIM,      -- "1" orthometric book, "2" ellipsoidal book
  変動観測簿No    TEXT COLLATE RTRIM,
  新観測年月From  TEXT,                    -- YYYYMM
  新観測年月To    TEXT,
  旧観測年月From  TEXT,
  旧観測年月To    TEXT
);
