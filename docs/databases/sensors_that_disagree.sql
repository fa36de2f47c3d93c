-- Pairs of sensors that measured the same monitors in the standard mode: how far apart they see its white.
WITH white AS (
    SELECT visits.monitor, patches.sensor_serial, avg(nullif(patches.xyz_y, 0)) AS mean_y
    FROM patches
    JOIN visits ON visits.file = patches.file
    WHERE patches.source = 'standard_mode_result'
      AND patches.rgb_r = 255 AND patches.rgb_g = 255 AND patches.rgb_b = 255
      AND patches.sensor_serial <> ''
    GROUP BY visits.monitor, patches.sensor_serial
)
SELECT one.sensor_serial AS sensor, other.sensor_serial AS other_sensor, count(*) AS monitors,
       round(avg(100 * (one.mean_y / other.mean_y - 1)), 2) AS difference_percent
FROM white AS one
JOIN white AS other ON other.monitor = one.monitor AND other.sensor_serial > one.sensor_serial
GROUP BY one.sensor_serial, other.sensor_serial
HAVING count(*) >= 3
ORDER BY abs(avg(100 * (one.mean_y / other.mean_y - 1))) DESC, sensor, other_sensor;
