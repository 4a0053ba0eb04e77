-- In the job of second grade: orthometric results of the route 01A00101, one of them a difference, none at A103; an
-- ellipsoidal result at A101 alone; one observation of June in the other spelling.
INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号, 標高, 正標高補正数,
  正標高結果) VALUES
  ('2', '1001', '01A00101', '0', 1, 'A101', 10, 2, 1.002),
  ('2', '1001', '01A00101', '0', 2, 'A102', NULL, -3, 10.999),
  ('2', '1001', '01A00101', '0', 4, 'A104', NULL, 4, 12.498);
INSERT INTO KansokuSeikaDataDaen (JobId, SaveOrder, 事業番号, 路線番号, 標石番号, 楕円補正値, 標高, 楕円補正結果, DataKubun)
  VALUES ('2', 1, '1001', '01A00101', 'A101', '1.23', '10.000', '10.001', '0');
UPDATE KansokuSeikaData SET 観測年月日 = '2022/06/01' WHERE JobId = '2' AND 標石番号 = 'A105';
