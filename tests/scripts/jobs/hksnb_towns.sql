-- Towns of the first route: A102 has none, A103 and A104 stand in 茅野市. Its orthometric results are saved.
UPDATE KansokuSeikaData SET 町村 = NULL WHERE JobId = '1' AND 路線番号 = '01A00101' AND 標石番号 = 'A102';
UPDATE KansokuSeikaData SET 町村 = '茅野市' WHERE JobId = '1' AND 路線番号 = '01A00101' AND 標石番号 IN ('A103', 'A104');
-- Mean differences with more decimals than a cell shows.
UPDATE KansokuSeikaData SET 中数 = 1.00004 WHERE JobId = '1' AND 路線番号 = '01A00101';
INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号, 標高, 正標高補正数,
  正標高結果) VALUES
  ('1', '1001', '01A00101', '0', 1, 'A101', 10, 1, 10),
  ('1', '1001', '01A00101', '0', 2, 'A102', 11.0000, 2, 11.0001),
  ('1', '1001', '01A00101', '0', 3, 'A103', 12.0001, 3, 12.0003);
