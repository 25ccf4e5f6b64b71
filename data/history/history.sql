-- The history database as it ships: one empty row a calendar day, from the first day of the long-term averages
-- to the end of the century. The program adds to rows and never inserts one.
PRAGMA journal_mode = DELETE;
BEGIN;
CREATE TABLE zps_record_day (
    record_date TEXT PRIMARY KEY, -- yyyy-MM-dd
    watts REAL NOT NULL DEFAULT 0, -- sum over the minutes
    efficiency REAL NOT NULL DEFAULT 0, -- percent, sum over the minutes
    kwh REAL NOT NULL DEFAULT 0,
    cost REAL NOT NULL DEFAULT 0,
    count_time INTEGER NOT NULL DEFAULT 0 -- minutes
) WITHOUT ROWID;
WITH RECURSIVE days(day) AS (
    SELECT '2017-08-01'
    UNION ALL
    SELECT date(day, '+1 day') FROM days WHERE day < '2099-12-31'
)
INSERT INTO zps_record_day (record_date) SELECT day FROM days;
-- Numbers of the record files that are in the sums, so that settling one again adds nothing.
CREATE TABLE zps_settled_file (number INTEGER PRIMARY KEY);
COMMIT;
