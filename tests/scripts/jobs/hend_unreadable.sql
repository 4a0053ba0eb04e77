-- A date that no calendar has, and a height difference too large for any calculation.
UPDATE KansokuSeikaData SET 観測年月日 = '20220231' WHERE 路線番号 = '01E00101' AND 標石番号 = 'E102';
UPDATE KansokuSeikaData SET 中数 = '1E999' WHERE 路線番号 = '01E00201' AND SaveOrder = 1;
