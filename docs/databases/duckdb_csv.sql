COPY monitors FROM 'monitors.csv' (HEADER);
COPY modes FROM 'modes.csv' (HEADER);
COPY patches FROM 'patches.csv' (HEADER);
COPY curves FROM 'curves.csv' (HEADER);
COPY maps FROM 'maps.csv' (HEADER);
