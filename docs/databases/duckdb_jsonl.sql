COPY monitors FROM 'monitors.jsonl' (FORMAT json);
COPY modes FROM 'modes.jsonl' (FORMAT json);
COPY patches FROM 'patches.jsonl' (FORMAT json);
COPY curves FROM 'curves.jsonl' (FORMAT json);
COPY maps FROM 'maps.jsonl' (FORMAT json);
