"""What do the pages of the help hold, as a reader sees them?"""
import html.parser
import pathlib
import re


class Page(html.parser.HTMLParser):
    """Titles, anchors, links, pictures and marked-up words of a page."""

    def __init__(self, path):
        super().__init__()
        self.name = path.name
        self.anchors = set()
        self.links = []  # addresses, as they are written
        self.pictures = []  # the attributes of each
        self.words = []  # (tag, class, text) of every element without elements inside
        self.rows = []  # of tables: the elements of self.words in each
        self.titles = []
        self.open = []
        self.text = ""
        self.feed(path.read_text(encoding="ascii"))
        self.close()
        self.text = " ".join(self.text.split())

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        self.open.append([tag, attributes.get("class", ""), ""])
        if "id" in attributes:
            self.anchors.add(attributes["id"])
        if tag == "tr":
            self.rows.append([])
        if tag == "img":
            self.pictures.append(attributes)
        self.links += [attributes[key] for key in ("href", "src") if key in attributes]
        if tag in ("img", "meta", "link", "br"):
            self.open.pop()

    def handle_data(self, data):
        self.text += data
        if self.open:
            self.open[-1][2] += data

    def handle_endtag(self, tag):
        opened, name, text = self.open.pop()
        if opened != tag:
            raise ValueError(f"{self.name}: <{opened}> is closed by </{tag}>")
        word = (tag, name, " ".join(text.split()))
        self.words.append(word)
        if self.rows and any(element[0] == "tr" for element in self.open):
            self.rows[-1].append(word)
        if tag in ("title", "h1"):
            self.titles.append(word[2])

    def texts(self, tag, name=""):
        return [text for found, found_name, text in self.words if (found, found_name) == (tag, name)]


def pages(folder):
    return {path.name: Page(path) for path in sorted(pathlib.Path(folder).glob("*.htm"))}


class SiteMap(html.parser.HTMLParser):
    """The entries of a contents or index file: name and address, None for a heading."""

    def __init__(self, path):
        super().__init__()
        self.entries = []
        self.feed(pathlib.Path(path).read_text(encoding="ascii"))
        self.close()

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag == "object":
            self.entries.append([None, None])
        if tag == "param":
            self.entries[-1][("Name", "Local").index(attributes["name"])] = attributes["value"]


def string_literals(path):
    """Every text of a C++ source or a resource script, adjacent ones joined."""
    source = re.sub(r"^\s*//.*|^#.*", "", path.read_text(encoding="ascii"), flags=re.MULTILINE)
    literal = r'"(?:[^"\\]|\\.)*"'
    for group in re.findall(rf"{literal}(?:\s+{literal})*", source):
        pieces = re.findall(literal, group)
        yield "".join(piece[1:-1].replace("\\r\\n", "\n").replace("\\t", "\t").replace('\\"', '"') for piece in pieces)
