-- Orthometric results of two routes: 01A00301 whole, 01A00101 without the result of its last section.
INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号, 標高, 正標高補正数,
  正標高結果)
  SELECT '1', 事業番号, 路線番号, '0', SaveOrder, 標石番号, COALESCE(標高, 100), 0, COALESCE(標高, 100) FROM KansokuSeikaData
  WHERE JobId = '1' AND DataKubun = '0' AND 路線番号 IN ('01A00101', '01A00301');
UPDATE KansokuSeikaDataSeihyou SET 正標高結果 = NULL WHERE 路線番号 = '01A00101' AND 水準点番号 = 'A104';
