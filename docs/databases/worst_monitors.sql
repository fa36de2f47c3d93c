-- The latest document of each monitor: where patches are farthest from what they should be.
SELECT visits.serial, visits.model, modes.name AS mode, modes.calibrated_time,
       modes.patches_delta_e2000_mean AS mean_delta_e, modes.patches_delta_e2000_maximum AS greatest_delta_e
FROM modes
JOIN visits ON visits.file = modes.file AND visits.place = 1
WHERE modes.patches_delta_e2000_mean IS NOT NULL
ORDER BY mean_delta_e DESC, visits.serial, modes.mode_index
LIMIT 5;
