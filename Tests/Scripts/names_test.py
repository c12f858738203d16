#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The program's names and version are the same wherever a listing needs them."""

import json
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "Tests" / "EndToEnd"))

from rig.product import fact


def version() -> str:
    return re.search(r"^project\(.* VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text(),
                     re.MULTILINE).group(1)


class NamesTest(unittest.TestCase):
    def test_the_flatpak_is_the_programs(self):
        folder = ROOT / "Packaging" / "flatpak"
        manifest = (folder / f"{fact('applicationId')}.yml").read_text()
        self.assertIn(f"\nid: {fact('applicationId')}\n", manifest)
        self.assertIn(f"\ncommand: {fact('programName')}\n", manifest)
        self.assertIn(f"url: {fact('homepage')}.git\n        tag: v{version()}\n", manifest)
        self.assertEqual(json.loads((folder / "flathub.json").read_text()),
                         {"only-arches": ["x86_64"]})

    def test_the_summary_is_not_cut_off(self):
        self.assertLessEqual(len(fact("purpose")), 35)

    def test_the_readme_names_the_files_of_the_release(self):
        readme = (ROOT / "README.md").read_text()
        self.assertIn(f"{fact('programName')}_{version()}+deb12_amd64.deb", readme)
        self.assertIn(f"{fact('programName')}-{version()}-x86_64.tar.xz", readme)

    def test_each_language_is_everywhere(self):
        desktop = (ROOT / "Packaging" / "launcher.desktop.in").read_text()
        metainfo = (ROOT / "Packaging" / "launcher.metainfo.xml.in").read_text()
        scenario = (ROOT / "Tests" / "EndToEnd" / "scenarios" / "languages.py").read_text()
        codes = [file.stem.split("_", 1)[1] for file in (ROOT / "Translations").glob("*.ts")]
        texts = max(metainfo.count(f'xml:lang="{code}"') for code in codes)
        self.assertGreater(texts, 0)
        for code in codes:
            with self.subTest(code):
                for key in ("GenericName", "Comment", "Keywords"):
                    self.assertIn(f"\n{key}[{code}]=", desktop)
                self.assertEqual(metainfo.count(f'xml:lang="{code}"'), texts)
                self.assertIn(f'    "{code if "_" in code else code + "_"}', scenario)
                self.assertTrue((ROOT / "Translations" / "glossary" / f"{code}.md").is_file())


if __name__ == "__main__":
    unittest.main()
