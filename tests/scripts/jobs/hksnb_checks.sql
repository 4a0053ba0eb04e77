-- Orthometric results of two routes, corrections of 0 and heights summed up from the first: 01A00301 whole, 01A00101
-- without the result of its last section.
INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号, 標高, 正標高補正数,
  正標高結果)
  SELECT '1', 事業番号, 路線番号, '0', SaveOrder, 標石番号, H, 0, H FROM (
    SELECT A.*, (SELECT F.標高 FROM KansokuSeikaData F WHERE F.JobId = '1' AND F.DataKubun = '0'
      AND F.事業番号 = A.事業番号 AND F.路線番号 = A.路線番号 AND F.SaveOrder = 1) +
    COALESCE((SELECT SUM(B.中数) FROM KansokuSeikaData B WHERE B.JobId = '1' AND B.DataKubun = '0'
      AND B.事業番号 = A.事業番号 AND B.路線番号 = A.路線番号 AND B.SaveOrder < A.SaveOrder), 0) AS H
    FROM KansokuSeikaData A WHERE A.JobId = '1' AND A.DataKubun = '0') S
  WHERE 路線番号 IN ('01A00101', '01A00301');
UPDATE KansokuSeikaDataSeihyou SET 正標高結果 = NULL WHERE 路線番号 = '01A00101' AND 水準点番号 = 'A104';
