"""What one core and one gibibyte carry, computed from the figures of a run."""

GIB = 2**30


def table(own):
    """own: the library's figures by workload, in nanoseconds (memory/*: bytes)."""
    send = own["build/32"] + own["encode/32"]
    receive = own["decode/32"]
    nested = own["nested_build/4x8"] + own["nested_encode/4x8"] + own["nested_decode/4x8"]
    rows = [
        ("lists built, encoded and freed", send),
        ("lists decoded with all checks, and freed", receive),
        ("lists through an exchange: built, encoded, freed, decoded, freed", send + receive),
        ("the same with four groups of eight attributes", nested),
        ("attributes found in a list", own["find_middle/32"]),
        ("attributes read in place from a received buffer", own["read_in_place/32"]),
        ("lines of text written for a number", own["render/number"]),
    ]
    lines = ["| one core, lists of 32 attributes | time | in a second |", "| --- | ---: | ---: |"]
    lines += [f"| {what} | {time:.0f} ns | {1000 / time:.1f} million |" for what, time in rows]
    sessions = GIB / own["memory/32"]
    lines += [
        "",
        f"One gibibyte holds {sessions / 1e6:.2f} million sessions of one list with 32 attributes, "
        f"{own['memory/32']:.0f} bytes each with what the allocator adds.",
    ]
    return "\n".join(lines)
