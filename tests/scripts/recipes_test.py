"""Every recipe runs as it stands."""

import os
import pathlib
import re
import subprocess
import sys
import unittest

TOP = pathlib.Path(__file__).resolve().parents[2]
RECIPE = re.compile(r"^```python\n(.*?)^```$", re.MULTILINE | re.DOTALL)


class RecipesTest(unittest.TestCase):
    def test_each_prints_something_and_ends_well(self):
        recipes = RECIPE.findall((TOP / "docs/recipes.md").read_text(encoding="utf-8"))
        self.assertGreater(len(recipes), 5)
        environment = {**os.environ, "PYTHONPATH": str(TOP / "scripts/client")}
        for recipe in recipes:
            with self.subTest(recipe):
                ran = subprocess.run([sys.executable, "-c", recipe], env=environment, text=True,
                                     capture_output=True, check=False)
                self.assertEqual(ran.returncode, 0, ran.stderr)
                self.assertRegex(ran.stdout, r"\S")


if __name__ == "__main__":
    unittest.main()
