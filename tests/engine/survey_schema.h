#pragma once

namespace test {

/// The tables of a job database with the columns that the screens name.
inline constexpr const char* surveySchema = R"(
CREATE TABLE KansokuSeikaData(JobId TEXT, 事業番号 TEXT, 路線番号 TEXT, DataKubun TEXT, SaveOrder INTEGER, 標石番号 TEXT,
  観測年月日 TEXT, 中数 REAL, 前回観測日 TEXT, 前回中数 REAL, 標高 REAL, 距離 REAL, 都道府県 TEXT, 郡市 TEXT, 町村 TEXT, RosenEndDataFlg TEXT(2));
CREATE TABLE KansokuSeikaDataSeihyou(JobId TEXT, 事業番号 TEXT, 路線番号 TEXT, DataKubun TEXT, SaveOrder INTEGER, 水準点番号 TEXT,
  標高 REAL, 備考1 TEXT, 備考2 TEXT, RosenEndDataFlg TEXT(2), 中数 REAL, 正標高補正数 REAL, 正標高結果 REAL);
CREATE TABLE KansokuSeikaDataDaen(JobId TEXT, SaveOrder INTEGER, 事業番号 TEXT, 路線番号 TEXT, 標石番号 TEXT, 距離 REAL, 楕円補正値 REAL,
  標高 REAL, 楕円補正結果 REAL, 備考1 TEXT, 備考2 TEXT, DataKubun TEXT, RosenEndDataFlg TEXT(2));
CREATE TABLE DaenHoseiChiHyouData(JobId TEXT, SaveOrder INTEGER, 事業番号 TEXT, 路線番号 TEXT, 自首末地 TEXT, 至首末地 TEXT,
  自水準点番号 TEXT, 至水準点番号 TEXT, B1 REAL, B2 REAL, B1_B2 REAL, B1plusB2 REAL, k REAL, H REAL, CalK REAL, DataKubun TEXT);
CREATE TABLE KansokuSeikaDataHend(JobId TEXT, SaveOrder INTEGER, 事業番号 TEXT, 路線番号 TEXT, 標石番号 TEXT, DataKubun TEXT);
CREATE TABLE KansokuSeikaDataTanrosen(JobId TEXT, 事業番号 TEXT, 路線番号 TEXT, DataKubun TEXT, SaveOrder INTEGER, 水準点番号 TEXT,
  距離 REAL, 標高 REAL, 単路線補正数 REAL, 単路線補正結果 REAL, 備考1 TEXT, 備考2 TEXT, RosenEndDataFlg TEXT(2), 中数 REAL);
CREATE TABLE KansokuSeikaDataHKSNB(JobId TEXT, SaveOrder INTEGER, 事業番号 TEXT, 路線番号 TEXT, 変動観測簿No TEXT, 補正値フラグ TEXT);
CREATE TABLE KansokuKikan(JobId TEXT, 観測簿種類 TEXT, 変動観測簿No TEXT, 新観測年月From TEXT, 新観測年月To TEXT,
  旧観測年月From TEXT, 旧観測年月To TEXT);
CREATE TABLE JobData(JobId TEXT, Tokyu INTEGER, JikkouFlg INTEGER);
CREATE TABLE A_ExePath(Exe_Dir TEXT);
INSERT INTO JobData VALUES('2', 2, 0), ('1', 1, 1);
INSERT INTO A_ExePath VALUES('C:\data\');
INSERT INTO KansokuSeikaData(JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号, 中数, 標高, RosenEndDataFlg) VALUES
  ('1', '2024', '10230101', '0', 1, 'BM1', 1.5, 10, ''), ('1', '2024    ', '10230101', '0', 2, 'BM2', NULL, 11.5, '-1'),
  ('1', '2024', '10230101', NULL, 3, 'BM3', NULL, 3, ''),
  ('1', '2024', 'AA2301XX', '1', 2, 'C2', 2, 8, ''), ('1', '2024', 'BB2301', '1', 1, 'C1', 2, 7, ''),
  ('1', '2024', 'AA9901XX', '1', 1, 'D1', 2, 9, '');
INSERT INTO KansokuSeikaDataSeihyou VALUES
  ('1', '2024', '10230101', '0', 1, 'BM1', 10.1, '山', '谷', '', 1.5, 2, 10.1),
  ('1', '2024', '10230101', '0', 2, 'BM2', 11.6, NULL, NULL, '-1', NULL, NULL, NULL);
INSERT INTO KansokuSeikaDataDaen VALUES
  ('1', 1, '2024', '10230101', 'BM1', 1.2, 0.3, 10, 10.0003, 'a', 'b', '0', '');
INSERT INTO KansokuSeikaDataTanrosen VALUES
  ('1', '2024', '10230101', '0', 1, 'BM1', 1.2, 10.2, 1, 10.3, NULL, NULL, '', 1.5),
  ('1', '2024', '10230101', '0', 7, 'BM7', 1.2, 10.4, 1, 10.3, NULL, NULL, '', 1.5);
INSERT INTO DaenHoseiChiHyouData(JobId, SaveOrder, 事業番号, 路線番号, DataKubun, k) VALUES
  ('1', 2, '2024', '10230101', '0', 0.2), ('1', 1, '2024', '10230101', '0', 0.1),
  ('1', 1, '2024', '10230101', '2', 0.3), ('1', 1, '2024', '10230199', '0', 0.4);
INSERT INTO KansokuSeikaDataHKSNB VALUES('1', 1, '2024', '10230101', '5', '0'), ('1', 2, '2024', '10230101', '5', '0'),
  ('1', 1, '2024', '10230101', '7', '1');
)";

}  // namespace test
