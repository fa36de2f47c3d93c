-- A line in a column of its own first: in JSON these two characters only occur escaped.
CREATE TEMPORARY TABLE lines (line json);

\copy lines FROM 'monitors.jsonl' WITH (FORMAT csv, DELIMITER E'\x01', QUOTE E'\x02')
INSERT INTO monitors SELECT (json_populate_record(NULL::monitors, line)).* FROM lines;
TRUNCATE lines;

\copy lines FROM 'modes.jsonl' WITH (FORMAT csv, DELIMITER E'\x01', QUOTE E'\x02')
INSERT INTO modes SELECT (json_populate_record(NULL::modes, line)).* FROM lines;
TRUNCATE lines;

\copy lines FROM 'patches.jsonl' WITH (FORMAT csv, DELIMITER E'\x01', QUOTE E'\x02')
INSERT INTO patches SELECT (json_populate_record(NULL::patches, line)).* FROM lines;
TRUNCATE lines;

\copy lines FROM 'curves.jsonl' WITH (FORMAT csv, DELIMITER E'\x01', QUOTE E'\x02')
INSERT INTO curves SELECT (json_populate_record(NULL::curves, line)).* FROM lines;
TRUNCATE lines;

\copy lines FROM 'maps.jsonl' WITH (FORMAT csv, DELIMITER E'\x01', QUOTE E'\x02')
INSERT INTO maps SELECT (json_populate_record(NULL::maps, line)).* FROM lines;
TRUNCATE lines;
