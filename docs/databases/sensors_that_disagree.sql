-- Pairs of sensors that measured the same monitors in the standard mode: how far apart they see its white.
WITH white AS (
    SELECT uuid, sensor_serial, avg(nullif(xyz_y, 0)) AS mean_y
    FROM patches
    WHERE source = 'standard_mode_result' AND rgb_r = 255 AND rgb_g = 255 AND rgb_b = 255
      AND sensor_serial IS NOT NULL
    GROUP BY uuid, sensor_serial
)
SELECT one.sensor_serial AS sensor, other.sensor_serial AS other_sensor, count(*) AS monitors,
       round(avg(100 * (one.mean_y / other.mean_y - 1)), 2) AS difference_percent
FROM white AS one
JOIN white AS other ON other.uuid = one.uuid AND other.sensor_serial > one.sensor_serial
GROUP BY one.sensor_serial, other.sensor_serial
HAVING count(*) >= 3
ORDER BY abs(avg(100 * (one.mean_y / other.mean_y - 1))) DESC, sensor, other_sensor;
