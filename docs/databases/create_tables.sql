-- The five tables, in types that DuckDB, SQLite and PostgreSQL understand alike.

CREATE TABLE monitors (
    file TEXT, uuid TEXT, serial TEXT, mode_index BIGINT, name TEXT, model TEXT,
    schedule_type BIGINT, schedule_interval_months BIGINT, schedule_interval_weeks BIGINT,
    schedule_interval_hours BIGINT, asset1 TEXT, asset2 TEXT, asset3 TEXT, asset4 TEXT, asset5 TEXT,
    asset6 TEXT, asset7 TEXT, asset8 TEXT, modes BIGINT, calibrated_modes BIGINT,
    last_calibration TEXT
);

CREATE TABLE modes (
    file TEXT, uuid TEXT, serial TEXT, mode_index BIGINT, type TEXT, name TEXT,
    brightness_type TEXT, brightness BIGINT, white_x DOUBLE PRECISION, white_y DOUBLE PRECISION,
    white_temperature BIGINT, gamma TEXT, gamut TEXT, calibrated_time TEXT, sensor_name TEXT,
    sensor_serial TEXT, usage_hours BIGINT, correlation_id BIGINT, correlation_date TEXT,
    white_tristimulus_y DOUBLE PRECISION, white_cct DOUBLE PRECISION,
    white_delta_uv DOUBLE PRECISION, white_delta_e2000 DOUBLE PRECISION,
    patches_delta_e2000_mean DOUBLE PRECISION, patches_delta_e2000_maximum DOUBLE PRECISION
);

CREATE TABLE patches (
    file TEXT, uuid TEXT, serial TEXT, mode_index BIGINT, source TEXT, patch BIGINT, rgb_r BIGINT,
    rgb_g BIGINT, rgb_b BIGINT, cmyk_c DOUBLE PRECISION, cmyk_m DOUBLE PRECISION,
    cmyk_y DOUBLE PRECISION, cmyk_k DOUBLE PRECISION, xyz_x DOUBLE PRECISION,
    xyz_y DOUBLE PRECISION, xyz_z DOUBLE PRECISION, lab_l DOUBLE PRECISION, lab_a DOUBLE PRECISION,
    lab_b DOUBLE PRECISION, pqr_p DOUBLE PRECISION, pqr_q DOUBLE PRECISION, pqr_r DOUBLE PRECISION,
    sensor_serial TEXT
);

CREATE TABLE curves (
    file TEXT, uuid TEXT, serial TEXT, mode_index BIGINT, kind TEXT, type TEXT, channel TEXT,
    entry BIGINT, value DOUBLE PRECISION
);

CREATE TABLE maps (
    file TEXT, uuid TEXT, serial TEXT, mode_index BIGINT, kind TEXT, entry BIGINT, value BIGINT,
    updated_at TEXT
);
