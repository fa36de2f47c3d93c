-- The darkest entry of the map of uniformity over the brightest one, from the latest document of each monitor.
WITH evenness AS (
    SELECT file, 100.0 * min(value) / nullif(max(value), 0) AS darkest_percent
    FROM maps
    WHERE kind = 'uniformity'
    GROUP BY file
)
SELECT visits.model, count(*) AS monitors, round(avg(darkest_percent), 1) AS mean_percent,
       round(min(darkest_percent), 1) AS worst_percent
FROM visits
JOIN evenness ON evenness.file = visits.file
WHERE visits.place = 1
GROUP BY visits.model
ORDER BY mean_percent, visits.model;
