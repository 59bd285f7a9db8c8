# SPDX-License-Identifier: MIT
"""What scripts/docs.py makes of a header: python3 -B tests/docs/docs_test.py"""

import re
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[2] / "scripts"))
import docs  # noqa: E402

HEADER = r"""#pragma once

/// A widget.
class HOXQUI_EXPORT Widget : public QWidget
{
    Q_OBJECT

    /// Height, mm.
    Q_PROPERTY(double height READ
            height WRITE setMmHeight)

public:
    explicit Widget(QWidget *parent = nullptr);

    /// Fixes the height.
    void setHeight();
    double height() const;
    void setMmHeight(double mm);
    void reset();
    /// Draws \a n lines, at the distance of \a
    /// gap px.
    void draw(int n, int gap);
    void draw(int n);
    /// For forms.
    Q_INVOKABLE void addFromForm(QWidget *widget);
    /// Weight of the text.
    int fontWeight() const { return 50; }
    void setFontWeight(int weight);
    /// Upper case.
    QString toUpper(const QString &text);
    QString toLower(const QString &text);
    QString toLower(int number);

protected:
    void paintEvent(QPaintEvent *event) override;
};
"""


class DocsTest(unittest.TestCase):
    def setUp(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "widget.h"
            path.write_text(HEADER)
            self.widget, = docs.read_header(path)
        self.page = docs.operations(self.widget.chosen("public", docs.is_operation), self.widget,
                                    {"Widget": self.widget})

    def test_comment_holds_for_what_it_speaks_of(self):
        described = {item.text.split("\n")[0]: item.declarations for item in self.widget.items}
        self.assertEqual(described["Fixes the height."], ["void setHeight()"])
        self.assertEqual(described["Weight of the text."],
                         ["int fontWeight() const", "void setFontWeight(int weight)"])
        self.assertEqual(described["Upper case."], ["QString toUpper(const QString &text)",
                                                    "QString toLower(const QString &text)",
                                                    "QString toLower(int number)"])
        self.assertEqual(self.page.count("Draws"), 1)
        self.assertIn("`void addFromForm(QWidget *widget)`", self.page)

    def test_member_that_nothing_describes_is_told(self):
        self.assertEqual(self.widget.bare, ["void reset()"])

    def test_accessors_stand_with_their_property(self):
        self.assertNotIn("setMmHeight", self.page)
        self.assertIn("`height()`<br>`setMmHeight()`", docs.properties(self.widget, {}))

    def test_argument_is_marked_across_lines(self):
        self.assertIn("Draws `n` lines, at the distance of `gap` px.", " ".join(self.page.split()))

    def test_function_is_shown_whole_with_its_comment(self):
        code = "int a();\n\n// Does b.\nint b(int x,\n    int y)\n{\n    {\n    }\n}\n\nint c()\n{\n}\n"
        self.assertEqual(docs.function_in(code, "b"),
                         "// Does b.\nint b(int x,\n    int y)\n{\n    {\n    }\n}\n")
        with self.assertRaises(ValueError):
            docs.function_in(code, "d")


class TutorialTest(unittest.TestCase):
    """The page shows of each step what the one before does not have, and nothing is lost on the way."""
    ROOT = Path(__file__).parents[2]
    STEPS = range(1, 8)

    def functions(self, step):
        text = (self.ROOT / f"examples/first-panel/step{step}.cpp").read_text()
        names = re.findall(r"^\w[^\n;=]*?\b(\w+)\([^\n]*$", text, re.M)
        return {name: docs.function_in(text, name) for name in names}

    def shown(self, step):
        page = (self.ROOT / "docs/first-panel-screen.md").read_text()
        blocks = re.findall(rf"<!-- code: examples/first-panel/step{step}.cpp ([\w ]+) -->", page)
        return [name for block in blocks for name in block.split()]

    def test_page_shows_what_is_new(self):
        before = {}
        for step in self.STEPS:
            now = self.functions(step)
            new = [name for name, code in now.items() if before.get(name) != code]
            self.assertGreater(len(new), 0)
            self.assertEqual(sorted(self.shown(step)), sorted(new), f"step {step}")
            before = now | {name: code for name, code in before.items() if name not in now}


if __name__ == "__main__":
    unittest.main()
