"""Prints the benchmark results of a folder as a table of ratios: bench_table.py FOLDER"""
import json
import pathlib
import sys

# What is measured, our benchmark, the other one, the goal for ours divided by the other, and the figure:
# "time" is the time per item; any other word names a counter of both.
ROWS = [
    ("Execute, 228 names at random / Lua call", "Execute/zelto", "Execute/lua54", 0.5, "time"),
    ("command look-up / gperf", "Lookup/zelto", "Lookup/gperf", 1.2, "time"),
    ("parse 40 pairs / RapidJSON", "Parse/zelto", "Parse/rapidjson", 1.0, "time"),
    ("parse 40 pairs / simdjson", "Parse/zelto", "Parse/simdjson", 2.2, "time"),
    ("format 40 pairs / RapidJSON", "Format/zelto", "Format/rapidjson", 1.0, "time"),
    ("copy a value handle / std::string", "CopyHandle/zelto", "CopyHandle/std_string", 0.3, "time"),
    ("request of 60 bytes / sd-bus", "Request60/zelto", "Request60/sdbus", 1.0, "time"),
    ("request of 60 bytes / write and read", "Request60/zelto", "Request60/bare", 1.6, "time"),
    ("request of 16 KiB / ZeroMQ", "Request16k/zelto", "Request16k/zeromq", 0.4, "time"),
    ("channel burst / memcpy", "ChannelBurst/zelto", "ChannelBurst/memcpy", 1.45, "time"),
    ("channel burst / boost message queue", "ChannelBurst/zelto", "ChannelBurst/boost_message_queue", 0.8, "time"),
    ("channel latency p50 / its waiting steps", "ChannelLatency/zelto", "ChannelLatency/steps", 1.1, "p50"),
    ("channel latency p99 / its waiting steps", "ChannelLatency/zelto", "ChannelLatency/steps", 1.1, "p99"),
    ("send an event / boost lockfree", "SendEvent/zelto", "SendEvent/boost_lockfree", 1.5, "time"),
    ("drain an event / boost lockfree", "DrainEvent/zelto10", "DrainEvent/boost_lockfree", 1.5, "time"),
    ("drain with 100,000 queued / with 10", "DrainEvent/zelto100000", "DrainEvent/zelto10", 1.3, "time"),
    ("media ring, 960 bytes / boost lockfree", "Ring960/zelto", "Ring960/boost_lockfree", 1.0, "time"),
    ("the same, read in place", "Ring960InPlace/zelto", "Ring960InPlace/boost_lockfree", 1.0, "time"),
    ("media ring, 1 MiB / boost lockfree", "Ring1MiB/zelto", "Ring1MiB/boost_lockfree", 1.05, "time"),
    ("a call's CPU / bare threads", "Call/zelto", "Call/bare", 1.5, "time"),
    ("idle engine's CPU / two bare threads", "Idle/zelto", "Idle/bare", 1.3, "time"),
    ("build 100 contacts / multi_index", "BuildContacts/zelto100", "BuildContacts/multi_index100", 1.6, "time"),
    ("build 1,000 contacts / multi_index", "BuildContacts/zelto1000", "BuildContacts/multi_index1000", 1.6, "time"),
    ("build 10,000 contacts / multi_index", "BuildContacts/zelto10000", "BuildContacts/multi_index10000", 1.6, "time"),
    ("build 50,000 contacts / multi_index", "BuildContacts/zelto50000", "BuildContacts/multi_index50000", 1.6, "time"),
    ("a contact of 10,000 / of 1,000, building", "BuildContacts/zelto10000", "BuildContacts/zelto1000", 2.0, "time"),
    ("page of ten of 100 contacts / multi_index", "ContactPage/zelto100", "ContactPage/multi_index100", 1.0, "time"),
    ("page of ten of 10,000 contacts / multi_index", "ContactPage/zelto10000", "ContactPage/multi_index10000", 1.0, "time"),
    ("page of ten of 50,000 contacts / multi_index", "ContactPage/zelto50000", "ContactPage/multi_index50000", 1.0, "time"),
    ("page of ten of 50,000 / of 100", "ContactPage/zelto50000", "ContactPage/zelto100", 1.5, "time"),
    ("presence change of 10,000 / multi_index", "PresenceChange/zelto10000", "PresenceChange/multi_index10000", 2.0, "time"),
    ("refresh a history of 10,000 / multi_index", "RefreshHistory/zelto10000", "RefreshHistory/multi_index10000", 1.6, "time"),
    ("an entry of 10,000 / of 1,000, refreshing", "RefreshHistory/zelto10000", "RefreshHistory/zelto1000", 1.3, "time"),
    ("page of ten of 10,000 entries / multi_index", "HistoryPage/zelto10000", "HistoryPage/multi_index10000", 1.0, "time"),
    ("history entry by time of 10,000 / multi_index", "HistoryByTime/zelto10000", "HistoryByTime/multi_index10000", 1.0, "time"),
    ("open a chat of 10,000 messages / multi_index", "OpenChat/zelto10000", "OpenChat/multi_index10000", 1.6, "time"),
    ("open a chat of 10,000 / of 1,000", "OpenChat/zelto10000", "OpenChat/zelto1000", 13.0, "time"),
    ("page of ten of 10,000 messages / multi_index", "ChatPage/zelto10000", "ChatPage/multi_index10000", 1.0, "time"),
    ("page of ten of 10,000 / of 1,000", "ChatPage/zelto10000", "ChatPage/zelto1000", 1.5, "time"),
]

# Limits that need no peer: what, benchmark, counter, limit.
LIMITS = [
    ("idle engine's wake-ups per second", "Idle/zelto", "wake_ups_per_s", 134),
    ("pictures lost in a call", "Call/zelto", "pictures_lost", 0),
    ("a call's memory above the idle engine, MiB", "Call/zelto", "resident_mib", 12),
]

NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def medians(folder):
    """Benchmark name to its median entry."""
    found = {}
    for path in sorted(pathlib.Path(folder).glob("*.json")):
        for entry in json.loads(path.read_text())["benchmarks"]:
            if entry.get("aggregate_name") == "median":
                name = entry["run_name"]
                for option in ("/iterations:", "/repeats:", "/manual_time", "/real_time", "/process_time"):
                    name = name.split(option)[0]
                found[name] = entry
    return found


def figure(entry, what):
    if what != "time":
        return entry.get(what)
    if "items_per_second" in entry:
        return 1e9 / entry["items_per_second"]
    return entry["real_time"] * NANOSECONDS[entry["time_unit"]]


def text(value, what):
    return f"{value:,.1f} ns" if what == "time" else f"{value:,.1f}"


def main():
    found = medians(sys.argv[1])
    print(f"{'':44}{'ours':>14}{'peer':>14}{'ratio':>8}{'goal':>7}")
    for title, ours, peer, goal, what in ROWS:
        if ours not in found or peer not in found:
            continue
        mine, other = figure(found[ours], what), figure(found[peer], what)
        if mine is None or not other:
            continue
        ratio = mine / other
        verdict = "" if ratio <= goal else "  above the goal"
        print(f"{title:44}{text(mine, what):>14}{text(other, what):>14}{ratio:8.2f}{goal:7.2f}{verdict}")
    for title, name, counter, limit in LIMITS:
        if name in found and counter in found[name]:
            value = found[name][counter]
            print(f"{title:44}{value:14,.1f}{'':14}{'':8}{limit:7}{'' if value <= limit else '  above the goal'}")


main()
