-- A section without a distance, references with and without a value, a route table that refuses one bench mark,
-- and a data folder without a picture tool.
UPDATE KansokuSeikaData SET 距離 = NULL WHERE JobId = '1' AND 標石番号 = 'F101';
UPDATE DaenHoseiChiHyouData SET k = NULL WHERE JobId = '1' AND 路線番号 = '01F00201';
INSERT INTO DaenHoseiChiHyouData (JobId, SaveOrder, 事業番号, 路線番号, 自水準点番号, 至水準点番号, k, DataKubun)
  VALUES ('1', 1, '1001', '01F00301', 'F301', 'F102', 0.6, '0');
CREATE TRIGGER refuse BEFORE INSERT ON KansokuSeikaDataDaen WHEN NEW.標石番号 = 'F102'
  BEGIN SELECT RAISE(ABORT, 'refused'); END;
UPDATE A_ExePath SET Exe_Dir = 'nowhere\';
