"""The generator of the style descriptions: what it writes, and what it says about wrong descriptions."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent
GENERATOR = ROOT / "tools" / "generate_style.py"
ENUMERATIONS = HERE / "enumerations.h"


def run(what: str, style: Path, output: Path, enumerations: Path = ENUMERATIONS) -> subprocess.CompletedProcess:
    command = [sys.executable, "-B", GENERATOR, what, "--style", style, "--enumerations", enumerations, "--output", output]
    return subprocess.run(command, capture_output=True, text=True, check=False)


class WrittenFiles(unittest.TestCase):
    maxDiff = None

    def check(self, what: str, golden: str) -> None:
        with tempfile.TemporaryDirectory() as folder:
            output = Path(folder) / golden
            result = run(what, HERE / "style", output)
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertEqual(output.read_text(), (HERE / "golden" / golden).read_text())

    def test_vocabulary_is_the_golden_one(self):
        self.check("vocabulary", "StyleVocabulary.cpp")

    def test_reference_is_the_golden_one(self):
        self.check("reference", "style-reference.md")

    def test_a_file_that_would_not_change_is_left_alone(self):
        with tempfile.TemporaryDirectory() as folder:
            output = Path(folder) / "out.cpp"
            run("vocabulary", HERE / "style", output)
            before = output.stat().st_mtime_ns
            run("vocabulary", HERE / "style", output)
            self.assertEqual(output.stat().st_mtime_ns, before)

    def test_the_reference_page_in_docs_is_current(self):
        with tempfile.TemporaryDirectory() as folder:
            output = Path(folder) / "reference.md"
            result = run("reference", ROOT / "style", output, ROOT / "host" / "api" / "VtxEnumerations.h")
            self.assertEqual(result.returncode, 0, result.stderr)
            current = output.read_text() == (ROOT / "docs" / "style-reference.md").read_text()
            self.assertTrue(current, "build the target style_reference and commit docs/style-reference.md")


class PropertySets(unittest.TestCase):
    maxDiff = None

    def test_headers_and_sources_are_the_golden_ones(self):
        with tempfile.TemporaryDirectory() as folder:
            output = Path(folder) / "sets"
            result = run("sets", HERE / "style", output)
            self.assertEqual(result.returncode, 0, result.stderr)
            golden = HERE / "golden" / "sets"
            self.assertEqual(sorted(file.name for file in output.iterdir()), sorted(file.name for file in golden.iterdir()))
            for file in golden.iterdir():
                self.assertEqual((output / file.name).read_text(), file.read_text(), file.name)

    def test_a_set_derives_from_that_of_its_nodes_base_and_narrows_its_nested_sets(self):
        with tempfile.TemporaryDirectory() as folder:
            output = Path(folder) / "sets"
            result = run("sets", ROOT / "style", output, ROOT / "host" / "api" / "VtxEnumerations.h")
            self.assertEqual(result.returncode, 0, result.stderr)
            line_axes = (output / "XYLineAxisPropertiesGenerated.h").read_text()
            self.assertIn("class XYLineAxisPropertiesGenerated : public XYAxisPropertiesGenerated", line_axes)
            self.assertIn("boost::shared_ptr<XYLineDetailPropertiesGenerated> getXDetail() const;", line_axes)
            self.assertNotIn("getAxismode", line_axes)
            axes = (output / "XYAxisPropertiesGenerated.h").read_text()
            self.assertIn("    boost::shared_ptr<AxisDetailPropertiesGenerated> getXDetail() const;", axes)


MEMBER = '[node.A]\nhelp = "A."\nmembers = [ %s ]\n[[place]]\npath = "A"\nnode = "A"\nscope = "frame"\n'

# A description, and what the message about it has to hold: file, node, key, what is wrong, what would be right.
FAULTS = {
    "not TOML": ("[node.A\n", ["wrong.toml", "is not TOML"]),
    "unknown table": ("[nodes.A]\n", ["wrong.toml", '"nodes" is unknown', "[node.NAME]"]),
    "unknown key": (
        MEMBER % '{ key = "B", type = "bool", default = true, help = "B.", defualt = 1 }',
        ['node "A": key "B"', '"defualt" is unknown', "default"],
    ),
    "no style name": (MEMBER % '{ key = "b c", type = "bool", default = true, help = "B." }', ['key "b c"', "is no style name", "ShowGrid"]),
    "no type": (MEMBER % '{ key = "B", default = true, help = "B." }', ['key "B"', 'either "type"', '"node"']),
    "unknown type": (MEMBER % '{ key = "B", type = "float", default = 1.0, help = "B." }', ['type "float" is unknown', "double"]),
    "no default": (MEMBER % '{ key = "B", type = "bool", help = "B." }', ['key "B"', 'has no "default"']),
    "no help": (MEMBER % '{ key = "B", type = "bool", default = true }', ['key "B"', 'has no "help"']),
    "no enumerator": (
        MEMBER % '{ key = "B", type = "LinePattern_e", default = "Wavy", help = "B." }',
        ['default "Wavy" is no enumerator of LinePattern_e', "Solid, Dashed"],
    ),
    "wrong default": (MEMBER % '{ key = "B", type = "bool", default = 1, help = "B." }', ["default 1 is no flag", "true or false"]),
    "whole number wanted": (MEMBER % '{ key = "B", type = "int", default = 1.5, help = "B." }', ["default 1.5 does not have the type int"]),
    "default at the open end": (MEMBER % '{ key = "B", type = "double", default = 0.0, above = 0, help = "B." }', ["default 0.0 is out of the range"]),
    "color out of range": (MEMBER % '{ key = "B", type = "color", default = 64, help = "B." }', ["default 64 is out of the range"]),
    "empty range": (MEMBER % '{ key = "B", type = "int", default = 1, min = 3, max = 2, help = "B." }', ["smallest value 3 is above the largest 2"]),
    "range of a flag": (MEMBER % '{ key = "B", type = "bool", default = true, min = 0, help = "B." }', ['"min" stands at a bool']),
    "unknown kind": (MEMBER % '{ key = "B", type = "bool", default = true, announces = "Noise", help = "B." }', ['announces "Noise"', "StateChange_e"]),
    "twice in a node": (
        MEMBER % '{ key = "B", type = "bool", default = true, help = "B." }, { key = "B", type = "bool", default = true, help = "B." }',
        ['node "A": key "B"', "stands twice"],
    ),
    "unknown node": (MEMBER % '{ key = "B", node = "C", help = "B." }', ['key "B"', 'node "C" is not described']),
    "unknown offset": (MEMBER % '{ key = "B", type = "bool", default = true, offset = "moon", help = "B." }', ['offset "moon" is not described']),
    "unused default": (
        MEMBER % '{ key = "B", node = "C", defaults = { D = 1 }, help = "B." }' + '[node.C]\nhelp = "C."\nmembers = []\n',
        ['key "B"', 'defaults "D"', "names no value below it"],
    ),
    "wrong overriding default": (
        MEMBER % '{ key = "B", node = "C", defaults = { D = 99 }, help = "B." }'
        + '[node.C]\nhelp = "C."\nmembers = [ { key = "D", type = "color", default = 1, help = "D." } ]\n',
        ['path "A/B/D"', "default 99 is out of the range"],
    ),
    "circle": (MEMBER % '{ key = "B", node = "A", help = "B." }', ['node "A"', "contains itself"]),
    "long path": (MEMBER % '{ key = "B/C/D/E/F/G/H", type = "bool", default = true, help = "B." }', ["has 8 names; 7 are allowed"]),
    "one path twice": (
        MEMBER % '{ key = "B", type = "bool", default = true, help = "B." }' + '[[place]]\npath = "A"\nnode = "A"\nscope = "page"\n',
        ['path "A/B"', "is described twice"],
    ),
    "unknown scope": ('[node.A]\nhelp = "A."\n[[place]]\npath = "A"\nnode = "A"\nscope = "world"\n', ['scope "world" is unknown', "process, page, frame"]),
    "offset without count": ("[offset.axis]\nlimit = 0\n", ['offset "axis"', "limit = 0", "from 1"]),
}


class WrongDescriptions(unittest.TestCase):
    def test_each_fault_is_told_with_where_and_what_would_be_right(self):
        for name, (text, expected) in FAULTS.items():
            with self.subTest(name), tempfile.TemporaryDirectory() as folder:
                (Path(folder) / "wrong.toml").write_text(text)
                output = Path(folder) / "out.cpp"
                result = run("vocabulary", Path(folder), output)
                self.assertEqual(result.returncode, 1, "the fault went unseen")
                self.assertFalse(output.exists(), "something was written")
                for part in expected:
                    self.assertIn(part, result.stderr)
                self.assertNotIn("Traceback", result.stderr)

    def test_all_faults_are_told_at_once(self):
        text = MEMBER % '{ key = "B", type = "float", default = 1, help = "B." }, { key = "C", type = "bool", help = "C." }'
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / "wrong.toml").write_text(text)
            self.assertEqual(len(run("vocabulary", Path(folder), Path(folder) / "out").stderr.splitlines()), 2)

    def test_a_set_can_only_narrow_what_its_base_has(self):
        bases = (
            '[node.A]\nset = true\nhelp = "A."\nmembers = [ { key = "B", type = "bool", default = true, help = "B." },'
            ' { key = "N", node = "L", help = "N." } ]\n[node.L]\nset = true\nhelp = "L."\nmembers = []\n'
            '[node.O]\nset = true\nhelp = "O."\nmembers = []\n[[place]]\npath = "A"\nnode = "D"\nscope = "frame"\n'
            '[[place]]\npath = "O"\nnode = "O"\nscope = "frame"\n'
        )
        derived = '[node.D]\nbase = "A"\nset = true\nhelp = "D."\nmembers = [ %s ]\n'
        for member in ('{ key = "B", type = "int", default = 1, help = "B." }', '{ key = "N", node = "O", help = "N." }'):
            with self.subTest(member), tempfile.TemporaryDirectory() as folder:
                (Path(folder) / "wrong.toml").write_text(bases + derived % member)
                result = run("sets", Path(folder), Path(folder) / "out")
                self.assertEqual(result.returncode, 1, "the fault went unseen")
                self.assertIn('replaces a member of "A"', result.stderr)

    def test_a_folder_without_descriptions_is_a_fault(self):
        with tempfile.TemporaryDirectory() as folder:
            result = run("vocabulary", Path(folder), Path(folder) / "out")
            self.assertEqual(result.returncode, 1)
            self.assertIn("holds no description", result.stderr)


if __name__ == "__main__":
    unittest.main()
