"""Numbers as fields and the frame of a sentence, on exact decimal arithmetic, for the writer of the golden rows."""

import re
import struct
from decimal import ROUND_HALF_UP, Decimal, localcontext

EMPTY = -9999


class Float(float):
    """A value that the program holds as a 32-bit float."""

    def __new__(cls, value):
        return super().__new__(cls, struct.unpack("f", struct.pack("f", float(value)))[0])

    def __repr__(self):
        for digits in range(1, 10):
            text = f"{float(self):.{digits}g}"
            if struct.pack("f", float(text)) == struct.pack("f", self):
                return text
        raise ValueError(float(self))


def shortest(value):
    return Decimal(repr(value))


def pattern(value, picture):
    with localcontext() as context:
        context.prec = 400
        context.rounding = ROUND_HALF_UP
        number = shortest(value)
        sign = "-" if number < 0 else ""
        number = abs(number)
        if picture == "":
            if isinstance(value, Float) and number:
                number = number.quantize(Decimal(1).scaleb(number.adjusted() - 6))
            text = f"{number:f}"
            return sign + (text.rstrip("0").rstrip(".") if "." in text else text)
        front, behind, words = re.fullmatch(r"([0#]*)(?:\.([0#]+))?(.*)", picture).groups()
        behind = behind or ""
        rounded = f"{number.quantize(Decimal(1).scaleb(-len(behind))):f}"
        whole, _, decimals = rounded.partition(".")
        whole = whole.lstrip("0").rjust(front.count("0"), "0")
        fixed = behind.rfind("0") + 1
        decimals = decimals[:fixed] + decimals[fixed:].rstrip("0")
        return sign + whole + ("." + decimals if decimals else "") + words


def field(value, picture):
    return "" if value == EMPTY else pattern(value, picture)


def frame(address, fields, no_checksum):
    text = ",".join([f"${address}", *fields])
    total = 0
    for letter in text[1:]:
        total ^= ord(letter)
    return text if no_checksum else f"{text}*{total:02X}"
