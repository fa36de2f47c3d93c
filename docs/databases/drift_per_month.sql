-- How the white of the standard mode, which no calibration corrects, has changed since a monitor's first document.
WITH white AS (
    SELECT substr(monitors.last_calibration, 1, 7) AS month,
           100 * (patches.xyz_y / first_value(nullif(patches.xyz_y, 0)) OVER (
               PARTITION BY monitors.uuid ORDER BY julianday(monitors.last_calibration)) - 1) AS change_percent
    FROM patches
    JOIN monitors ON monitors.file = patches.file
    WHERE patches.source = 'standard_mode_result'
      AND patches.rgb_r = 255 AND patches.rgb_g = 255 AND patches.rgb_b = 255
      AND julianday(monitors.last_calibration) IS NOT NULL
)
SELECT month, count(*) AS monitors, round(avg(change_percent), 2) AS mean_change_percent,
       round(min(change_percent), 2) AS greatest_loss_percent
FROM white
GROUP BY month
ORDER BY month;
