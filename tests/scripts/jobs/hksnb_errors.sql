-- A route of 501 bench marks in a project of its own, no table of periods, no table of ellipsoidal results, and a data
-- folder without a picture tool.
CREATE TABLE Ten (n INTEGER);
INSERT INTO Ten VALUES (0), (1), (2), (3), (4), (5), (6), (7), (8), (9);
INSERT INTO KansokuSeikaData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号, 中数)
  SELECT '1', '1009', '01X00101', '0', 100 * a.n + 10 * b.n + c.n, 'X' || (100 * a.n + 10 * b.n + c.n), 0.5
  FROM Ten AS a, Ten AS b, Ten AS c WHERE 100 * a.n + 10 * b.n + c.n <= 500;
DROP TABLE Ten;
INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号, 標高, 正標高補正数)
  VALUES ('1', '1009', '01X00101', '0', 0, 'X0', 100, 1);
DROP TABLE KansokuKikan;
DROP TABLE KansokuSeikaDataDaen;
UPDATE A_ExePath SET Exe_Dir = 'nowhere\';
