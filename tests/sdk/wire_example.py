"""Holds the worked examples of docs/wire-format.md against what the library writes and reads."""

import re
import sys

import sdk

READ = ("frame 1, ambassador 1, object 1, value 1, tag 1, order 1, transportation 1, federate 1")


def digits(text, name):
    """The bytes of an example: the pairs of digits that a line begins with."""
    block = re.search(rf"^```bytes {name}\n(.*?)^```$", text, re.DOTALL | re.MULTILINE)[1]
    lines = (re.match(r"((?:[0-9A-F]{2} ?)+)(?:\s|$)", line) for line in block.splitlines())
    return "".join(line[1].replace(" ", "") for line in lines)


def main():
    to = sdk.settings()
    differences = sdk.Differences()
    text = (to.source / "docs/wire-format.md").read_text()
    body, said = sdk.run(sys.argv[2], digits(text, "callback")).splitlines()
    differences.check("service", body == digits(text, "service"),
                      f"the library writes {body}")
    differences.check("callback", said == READ, said)
    differences.finish()


if __name__ == "__main__":
    main()
