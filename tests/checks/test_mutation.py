"""Which faults scripts/mutate finds in a source."""

import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts"))

from mutation.faults import faults_of, sample  # noqa: E402

SOURCE = """#include "a.h"
// if (1 < 2) comment();
constexpr Seconds patience{30};
const char* text = "1 == 2";
void f(const std::vector<int>& all) {
    if (all.size() >= 4 && !isDone) stop();
    std::string name(text);
    Debug::log([] { return g(7); });
    run([] { again(); });
    return last();
}
"""


def changes(source, path="a.cpp"):
    return [(fault.old, fault.new) for fault in faults_of(path, source)]


def test_constants_comparisons_and_calls_are_found_and_nothing_else():
    assert changes(SOURCE) == [
        ("30", "37"), (">=", ">"), ("4", "5"), ("&&", "||"), ("!", ""), ("stop();", ";"),
        ("run([] { again(); });", ";"), ("again();", ";"),
    ]


def test_numbers_change_by_a_quarter_and_by_at_least_one():
    assert changes("x = 0; x = 1.5; x = 0.0; x = 1'000; x = 3u; x = true;") == [
        ("0", "1"), ("1.5", "1.875"), ("0.0", "1"), ("1'000", "1250"), ("3u", "4u"),
        ("true", "false"),
    ]


def test_each_fault_has_a_unique_name_that_does_not_depend_on_its_line():
    names = [fault.name for fault in faults_of("a.cpp", SOURCE + SOURCE)]
    assert len(set(names)) == len(names)
    assert names[:8] == [fault.name for fault in faults_of("a.cpp", "\n\n" + SOURCE)]


def test_a_sample_is_spread_evenly_and_the_same_for_the_same_seed():
    faults = [fault for path, times in (("src/app/a.cpp", 9), ("src/capture/b.cpp", 1),
                                        ("src/panel/views/c.cpp", 9))
              for fault in faults_of(path, SOURCE * times)]
    chosen = sample(faults, 12, seed=1)
    assert chosen == sample(list(faults), 12, seed=1)
    assert chosen != sample(faults, 12, seed=2)
    assert [sum(fault.path == path for fault in chosen)
            for path in ("src/app/a.cpp", "src/capture/b.cpp", "src/panel/views/c.cpp")] == [4] * 3
    assert len(sample(faults, 10_000, seed=1)) == len(faults)
