-- First grade: a saved orthometric route that ends with a pair, with an observed height that is a blank text today.
UPDATE KansokuSeikaData SET 標高 = '' WHERE JobId = '1' AND 路線番号 = '01A00201' AND SaveOrder = 3;
INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号, 標高, RosenEndDataFlg, 中数,
  正標高補正数, 正標高結果) VALUES
  ('1', '1001', '01A00201', '0', 1, 'A201', '20', NULL, '2', '8', '20'),
  ('1', '1001', '01A00201', '0', 2, 'A202', NULL, '-2', NULL, NULL, '22.0008'),
  ('1', '1001', '01A00201', '0', 3, 'A201', '20.5', NULL, '2.002', NULL, '20'),
  ('1', '1001', '01A00201', '0', 4, 'A202', NULL, '-2', NULL, NULL, '22.002'),
  ('1', '1001', '01A00201', '0', 5, 'A202', NULL, '-1', NULL, NULL, NULL);
-- Second grade: a saved single route whose last two bench marks have changed places in the observations since, and
-- which is observed in category 4 too, with another height at its start.
INSERT INTO KansokuSeikaDataTanrosen (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号, 距離, 標高, 単路線補正数,
  単路線補正結果, RosenEndDataFlg, 中数) VALUES
  ('2', '1001', '01D00301', '0', 1, 'D301', '1', '50', '0', '50', NULL, '1'),
  ('2', '1001', '01D00301', '0', 2, 'D302', '1', '51', '2', '51.002', NULL, '1'),
  ('2', '1001', '01D00301', '0', 3, 'D303', '2', '52', '4', '52.004', NULL, '1'),
  ('2', '1001', '01D00301', '0', 4, 'D304', '2', '53', NULL, NULL, NULL, '1'),
  ('2', '1001', '01D00301', '0', 5, 'D305', NULL, '54', NULL, NULL, '-1', NULL);
UPDATE KansokuSeikaData SET SaveOrder = 9 - SaveOrder
  WHERE JobId = '2' AND 路線番号 = '01D00301' AND SaveOrder IN (4, 5);
INSERT INTO KansokuSeikaData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号, 標高, 中数)
  VALUES ('2', '1001', '01D00301', '4', 1, 'D301', '49.9', '1');
