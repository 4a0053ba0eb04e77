-- A route that begins with a newly established point and has two of them in one old section, and one whose old
-- observation ends above the new point (no route end, nothing old below).
INSERT INTO KansokuSeikaData
  (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号, 観測年月日, 中数, 前回観測日, 前回中数, RosenEndDataFlg)
VALUES
  ('1', '1001', '01E00301', '0', 1, 'E301', '20220511', 0.4, NULL, NULL, NULL),
  ('1', '1001', '01E00301', '0', 2, 'E302', '20220511', 1.2, '20190815', 3.0101, NULL),
  ('1', '1001', '01E00301', '0', 3, 'E303', '20220521', 0.8, NULL, NULL, NULL),
  ('1', '1001', '01E00301', '0', 4, 'E304', '20220531', 1.0, NULL, NULL, NULL),
  ('1', '1001', '01E00301', '0', 5, 'E305', NULL, NULL, NULL, NULL, '-1'),
  ('1', '1001', '01E00401', '0', 1, 'E401', '20220511', 1.2, '20190815', 1.19, NULL),
  ('1', '1001', '01E00401', '0', 2, 'E402', '20220521', 0.8, NULL, NULL, NULL);
