-- Monitors whose last calibration is older than the interval of their schedule, or than 180 days without one; and
-- those that have none, or whose date cannot be read. Replace the day by that of today.
WITH ages AS (
    SELECT serial, model, last_calibration,
           julianday('2024-11-30') - day AS age_days,
           coalesce(CASE schedule_type
               WHEN 1 THEN 31 * schedule_interval_months
               WHEN 2 THEN 7 * schedule_interval_weeks
               WHEN 3 THEN schedule_interval_hours / 24.0
               WHEN 31 THEN schedule_interval_hours / 24.0
               WHEN 32 THEN 1     -- daily
               WHEN 33 THEN 7     -- weekly
               WHEN 50 THEN 31    -- monthly
               WHEN 51 THEN 92    -- quarterly
               WHEN 52 THEN 184   -- half-yearly
               WHEN 53 THEN 366   -- yearly
           END, 180) AS allowed_days
    FROM visits
    WHERE place = 1
)
SELECT serial, model, last_calibration, round(age_days, 1) AS age_days, round(allowed_days, 1) AS allowed_days
FROM ages
WHERE age_days IS NULL OR age_days > allowed_days
ORDER BY age_days IS NULL DESC, age_days - allowed_days DESC, serial;
