"""What a person does with lists and combos, over and over."""

import sys

import drive


def backslashed(path):
    """A path as the program shows it."""
    return str(path).replace("/", "\\")


class Hand:
    """A person at the program. Pictures of what is done go to the folder that the command line names behind the build
    folder."""

    def __init__(self, program):
        self.program = program
        self.pictures = sys.argv[2] if len(sys.argv) > 2 else None
        self.taken = 0

    def look(self, what):
        if self.pictures:
            self.taken += 1
            self.program.screenshot(f"{self.pictures}/{self.taken:02} {what}.png")

    def nth(self, window, name, number):
        """The row of a list, a tree or a combo by its number."""
        return drive.wait_until(lambda: dict(enumerate((self.program.widget(window, name) or {}).get("rows", [])))
                                .get(number), f"row {number} of {window}.{name}")

    def choose(self, window, combo, number):
        """Opens a combo and clicks a row, unless it is chosen."""
        text = self.nth(window, combo, number)["text"]
        if self.program.widget(window, combo)["text"] != text:
            self.program.select_row(window, combo, text)

    def highlight(self, window, name, number):
        row = self.nth(window, name, number)
        self.program.click_at(drive.wait_until(lambda: self.nth(window, name, number).get("rect"), row["text"]))
        drive.wait_until(lambda: self.nth(window, name, number)["selected"], f"{row['text']} to be highlighted")

    def mark(self, window, name, number, marked):
        """Clicks the mark of a row."""
        left, top, _, height = self.nth(window, name, number)["rect"]
        self.program.click_at([left, top, 20, height])
        drive.wait_until(lambda: self.nth(window, name, number)["checked"] == marked, f"the mark of row {number} of {name}")

    def unmark(self, window, name, number):
        self.mark(window, name, number, False)

    def take(self, window, command, rows, folder, *names):
        """Takes sounds through the intake."""
        program = self.program
        program.click(window, command)
        program.wait_window("frmnactizvuky")
        program.type_text("frmnactizvuky", "box_path", str(folder))
        program.key("Return")
        for number, name in enumerate(names):
            program.select_row("frmnactizvuky", "File1", name)
            program.click("frmnactizvuky", "cmdadd")
            self.nth("frmnactizvuky", "seznamsouboru", number)
        self.look(f"intake {command}")
        program.click("frmnactizvuky", "cmdopen")
        program.wait_gone("frmnactizvuky")
        program.wait_window(window)
        self.nth(window, rows, len(names) - 1)

    def say(self, window, combo, field, texts):
        """Types a text in several languages."""
        for language, text in texts.items():
            self.choose(window, combo, language)
            self.program.type_text(window, field, text)
