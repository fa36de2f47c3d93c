-- How the white of the standard mode, which no calibration corrects, has changed since the same sensor first measured
-- the same monitor; and how much that is per month.
WITH white AS (
    SELECT visits.monitor, visits.day, substr(visits.last_calibration, 1, 7) AS month,
           first_value(visits.day) OVER earlier AS first_day,
           100 * (patches.xyz_y / first_value(nullif(patches.xyz_y, 0)) OVER earlier - 1) AS change_percent
    FROM patches
    JOIN visits ON visits.file = patches.file
    WHERE patches.source = 'standard_mode_result'
      AND patches.rgb_r = 255 AND patches.rgb_g = 255 AND patches.rgb_b = 255
      AND patches.sensor_serial <> '' AND visits.day IS NOT NULL
    WINDOW earlier AS (PARTITION BY visits.monitor, patches.sensor_serial ORDER BY visits.day)
)
SELECT month, count(DISTINCT monitor) AS monitors, round(avg(change_percent), 2) AS mean_change_percent,
       round(min(change_percent), 2) AS greatest_loss_percent,
       round(avg(change_percent / (day - first_day) * 30.4375), 2) AS percent_per_month
FROM white
WHERE day > first_day
GROUP BY month
ORDER BY month;
