"""Tables of an installer database, as the text that msibuild imports."""
import dataclasses

CODEPAGE = 65001


@dataclasses.dataclass
class Table:
    """Columns are named "Name type", keys first; the types are those of the text form: s72 is text of at most 72
    characters, l255 the same in the language of the package, i2 a number, v0 a file's name; a capital may be empty."""
    name: str
    columns: list
    keys: int
    rows: list = dataclasses.field(default_factory=list)

    def add(self, *values):
        assert len(values) == len(self.columns), (self.name, values)
        self.rows.append(["" if value is None else str(value) for value in values])

    def text(self):
        names, types = zip(*(column.split() for column in self.columns))
        lines = [names, types, [self.name, *names[:self.keys]], *self.rows]
        return "".join("\t".join(line) + "\r\n" for line in lines)


def write(tables, folder):
    """Writes them as files into the folder. Returns their names."""
    files = [folder / f"{table.name}.idt" for table in tables]
    for table, file in zip(tables, files):
        file.write_bytes(table.text().encode("utf-8"))
    codepage = folder / "_ForceCodepage.idt"
    codepage.write_bytes(f"\r\n\r\n{CODEPAGE}\t_ForceCodepage\r\n".encode())
    return [codepage, *files]
