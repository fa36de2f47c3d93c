-- What the five questions start from: each document with the monitor it is of, the day of its last calibration, and its
-- place among the documents of this monitor, the latest first. A monitor without a UUID is known by its serial number.
CREATE VIEW visits AS
WITH days AS (
    SELECT *, coalesce(nullif(uuid, ''), nullif(serial, ''), file) AS monitor,
           CASE WHEN last_calibration LIKE '____-__-__%' THEN julianday(last_calibration) END AS day
    FROM monitors
)
SELECT *, row_number() OVER (PARTITION BY monitor ORDER BY day DESC NULLS LAST, file) AS place
FROM days;
