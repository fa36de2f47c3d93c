-- The darkest entry of the map of uniformity over the brightest one, from the latest document of each monitor.
WITH latest AS (
    SELECT *, row_number() OVER (PARTITION BY uuid ORDER BY coalesce(last_calibration, '') DESC, file) AS place
    FROM monitors
), evenness AS (
    SELECT file, 100.0 * min(value) / nullif(max(value), 0) AS darkest_percent
    FROM maps
    WHERE kind = 'uniformity'
    GROUP BY file
)
SELECT latest.model, count(*) AS monitors, round(avg(darkest_percent), 1) AS mean_percent,
       round(min(darkest_percent), 1) AS worst_percent
FROM latest
JOIN evenness ON evenness.file = latest.file
WHERE latest.place = 1
GROUP BY latest.model
ORDER BY mean_percent, latest.model;
