import json
import sqlite3

database = sqlite3.connect("fleet.sqlite")
for table in ("monitors", "modes", "patches", "curves", "maps"):
    with open(f"{table}.jsonl", encoding="utf-8") as lines:
        rows = [list(json.loads(line).values()) for line in lines]
    if rows:
        places = ", ".join("?" * len(rows[0]))
        database.executemany(f"INSERT INTO {table} VALUES ({places})", rows)
database.commit()
