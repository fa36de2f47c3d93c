-- What SQLite has and DuckDB does not: the day that a text stands for as a number, null when it is not a date.
CREATE MACRO julianday(text) AS julian(try_cast(text AS TIMESTAMP));
