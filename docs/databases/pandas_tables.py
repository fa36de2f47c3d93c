import pandas

# Only what is empty is missing: a monitor may be called "NA". Serial numbers stay texts: "0417" is not 417.
texts = {"uuid": str, "serial": str, "name": str, "sensor_serial": str}
modes = pandas.read_csv("modes.csv", dtype=texts, keep_default_na=False, na_values=[""])
again = pandas.read_json("modes.jsonl", lines=True, dtype=False, convert_dates=False)

# Only what is written year first is a date: pandas would take "09:31" for today.
times = modes["calibrated_time"].where(modes["calibrated_time"].str.match(r"\d{4}-\d\d-\d\d", na=False))
day = pandas.to_datetime(times, errors="coerce")
print(modes.groupby(day.dt.to_period("Q"))["white_delta_e2000"].agg(["count", "mean", "max"]).round(3))
