-- What SQLite has and PostgreSQL does not: the day that a text stands for as a number, null when it is not a date; and
-- rounding of numbers that are not exact.
CREATE FUNCTION julianday(value text) RETURNS double precision LANGUAGE sql STABLE AS $$
    SELECT CASE WHEN value ~ '^\d{4}-\d\d-\d\d' THEN extract(epoch FROM value::timestamp) / 86400 + 2440587.5 END
$$;
CREATE FUNCTION round(value double precision, digits integer) RETURNS numeric LANGUAGE sql IMMUTABLE AS $$
    SELECT round(value::numeric, digits)
$$;
