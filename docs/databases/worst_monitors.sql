-- The latest document of each monitor: where patches are farthest from what they should be.
WITH latest AS (
    SELECT *, row_number() OVER (PARTITION BY uuid ORDER BY coalesce(last_calibration, '') DESC, file) AS place
    FROM monitors
)
SELECT latest.serial, latest.model, modes.name AS mode, modes.calibrated_time,
       modes.patches_delta_e2000_mean AS mean_delta_e, modes.patches_delta_e2000_maximum AS greatest_delta_e
FROM modes
JOIN latest ON latest.file = modes.file AND latest.place = 1
WHERE modes.patches_delta_e2000_mean IS NOT NULL
ORDER BY mean_delta_e DESC, latest.serial, modes.mode_index
LIMIT 5;
