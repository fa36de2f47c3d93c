"""Prints what became of mutants, and stores the figures."""

import collections
import json

from .areas import SOURCE, sources


def tell(mutant, outcome):
    if outcome == "survived":
        print(f"{mutant.path}:{mutant.line}: survives\n  {mutant.key}", flush=True)


def figures(outcomes, listed):
    """How many mutants were killed, are kept, survived, do not compile."""
    counted = collections.Counter(
        "kept" if outcome == "survived" and mutant.key in listed else outcome for mutant, outcome in outcomes
    )
    return {name: counted[name] for name in ("killed", "kept", "survived", "invalid")}


def print_all(area, outcomes, listed, is_whole):
    """Prints what is wrong, and the figures; answers whether nothing is wrong."""
    wrong = [f"survives\n  {mutant.key}" for mutant, how in outcomes if how == "survived" and mutant.key not in listed]
    wrong += [f"is listed, but noticed\n  {mutant.key}" for mutant, how in outcomes if how == "killed" and mutant.key in listed]
    if is_whole:
        known, paths = {mutant.key for mutant, _ in outcomes}, {str(path) for path in sources(area, "*")}
        wrong += [f"is listed, but there is none\n  {key}" for key in listed if key.split(":")[0] in paths and key not in known]
    print("\n".join(wrong))
    counted = figures(outcomes, listed)
    print(f"{area}: {sum(counted.values())} mutants, " + ", ".join(f"{count} {name}" for name, count in counted.items()))
    return not wrong


def write(outcomes, listed):
    """Stores the figures of each folder where scripts/quality finds them: how many mutants it has, and what is known."""
    path = SOURCE / "docs" / "quality" / "mutation.json"
    stored = json.loads(path.read_text(encoding="utf-8")) if path.exists() else {}
    by_folder = collections.defaultdict(list)
    for mutant, outcome in outcomes:
        by_folder[folder_of(mutant)].append((mutant, outcome))
    for folder, its_outcomes in by_folder.items():
        stored[folder] = {"found": len(its_outcomes), **figures(its_outcomes, listed)}
    path.parent.mkdir(exist_ok=True)
    path.write_text(json.dumps(stored, indent=4, sort_keys=True) + "\n", encoding="utf-8")


def folder_of(mutant):
    return mutant.path.rpartition("/")[0]
