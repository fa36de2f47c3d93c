COPY monitors TO 'monitors.parquet' (FORMAT parquet);
COPY modes TO 'modes.parquet' (FORMAT parquet);
COPY patches TO 'patches.parquet' (FORMAT parquet);
COPY curves TO 'curves.parquet' (FORMAT parquet);
COPY maps TO 'maps.parquet' (FORMAT parquet);
