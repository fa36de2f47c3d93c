.import --csv --skip 1 monitors.csv monitors
.import --csv --skip 1 modes.csv modes
.import --csv --skip 1 patches.csv patches
.import --csv --skip 1 curves.csv curves
.import --csv --skip 1 maps.csv maps

-- The import makes an empty text of what is not there. This writes the statements that make it null, and runs them.
.mode list
.once nulls.sql
SELECT 'UPDATE ' || tables.name || ' SET ' || columns.name || ' = NULL WHERE ' || columns.name || ' = '''';'
FROM sqlite_schema AS tables, pragma_table_info(tables.name) AS columns
WHERE tables.name IN ('monitors', 'modes', 'patches', 'curves', 'maps');
.read nulls.sql
