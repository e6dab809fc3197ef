"""The sentences of gyro, log, echo sounder and wind gauge, for generate.py: for each kind its fields, its usual inputs and
the edges that are tried on top of them."""

from wire_text import EMPTY, Float, field

F = Float
PROPRIETARY = {"att": "PFEC", "prdid": "PRDID"}  # the address, where it is not the talker and the kind


def gyro_number(r, key):
    return field(r[key], {0: "000", 2: "000.00", 3: "000.000"}.get(r["Decimals"], "000.0"))


def numbers(*layout):
    """A composer: an item is the key of a number and its picture, the key of a text, or a fixed letter behind '='."""

    def compose(r):
        return [field(r[item[0]], item[1]) if isinstance(item, tuple) else item[1:] if item[0] == "=" else r[item]
                for item in layout]

    return compose


def att(r):
    return [r["Talker"] + "att", *(field(r[key], "000.0#") for key in ("Heading", "Pitch", "Roll"))]


def vlw(r):
    def step(speed):
        return F(F(r["Log_VLW_Seconds"] * speed) / 3600)

    water, ground = step(r["Water_kn"]), step(r["Ground_kn"])
    fields = []
    for which, way in (("Water", water), ("Ground", ground)):
        fields += [field(F(r[f"Log_Total_{which}"] + way), "0.0000"), "N",
                   field(F(r[f"Log_Trip_{which}"] + way), "0.0#"), "N"]
    return [*fields, ""]


def all_empty(*keys):
    return {key: F(EMPTY) for key in keys}


def gyro_edges(key):
    return {"no decimals": {"Decimals": 0, key: F(7.25)}, "two decimals": {"Decimals": 2, key: F(7.25)},
            "three decimals": {"Decimals": 3, key: F(123.456)},
            "seven decimals are as one": {"Decimals": 7, key: F(7.25)},
            "decimals below 0 are as one": {"Decimals": -1, key: F(7.25)},
            "not wrapped": {key: F(359.96)}, "not wrapped without decimals": {"Decimals": 0, key: F(359.5)},
            "minus in front of the zeros": {key: F(-5.5)}, "a tie of the shortest text": {key: F(123.45)},
            "a tie below 0": {key: F(-0.25)}, "a tie of three decimals": {"Decimals": 3, key: F(1.0005)},
            "zero": {key: F(0)}, "more digits than places": {key: F(1234.5)}, "all empty": all_empty(key),
            "empty without decimals": {"Decimals": 0, key: F(EMPTY)}, "beside the marker": {key: F(-9999.5)}}


LAYOUTS = {
    "vhw": (("Heading_True", "000.0#"), "=T", ("Heading_Magnetic", "000.0#"), "=M", ("Speed_Knots", "0.0#"), "=N",
            ("Speed_Kmh", "0.0#"), "=K"),
    "vbw": (("Water_Long", "0.0#"), ("Water_Trans", "0.0#"), "Water_Status", ("Ground_Long", "0.0#"),
            ("Ground_Trans", "0.0#"), "Ground_Status", ("Stern_Water", "0.0#"), "Stern_Water_Status",
            ("Stern_Ground", "0.0#"), "Stern_Ground_Status"),
    "vdr": (("Set_True", "000.0"), "=T", ("Set_Magnetic", "000.0"), "=M", ("Drift", "0.0"), "=N"),
    "dbt": (("Depth_Feet", "0.0#"), "=f", ("Depth_Metres", "0.0#"), "=M", ("Depth_Fathoms", "0.0#"), "=F"),
    "dpt": (("Depth", "0.0"), ("Offset", "0.0"), ("Range", "0.0#")),
    "mwv": (("Angle", "000.0#"), "Reference", ("Speed", "000.0#"), "Speed_Unit", "Status"),
    "mwd": (("Dir_True", "000.0#"), "=T", ("Dir_Magnetic", "000.0#"), "=M", ("Speed_Knots", "000.0#"), "=N",
            ("Speed_Ms", "000.0#"), "=M"),
    "prdid": (("Pitch", "000.0#"), ("Roll", "000.0#"), ("Heading", "000.0#")),
}

ATTITUDE_EDGES = {"flat": dict(Heading=F(0), Pitch=F(0), Roll=F(0)),
                  "ties": dict(Heading=F(359.995), Pitch=F(-0.005), Roll=F(1.005)),
                  "minus zero": dict(Pitch=F(-0.001), Roll=F(-0.0)),
                  "all empty": all_empty("Heading", "Pitch", "Roll")}

SENSOR_KINDS = {
    "hdt": (lambda r: [gyro_number(r, "Heading"), "T"], dict(Decimals=1, Heading=F(123.4)), gyro_edges("Heading")),
    "ths": (lambda r: [gyro_number(r, "Heading"), r["Mode"]], dict(Decimals=1, Heading=F(123.4), Mode="A"),
            gyro_edges("Heading") | {"not valid": dict(Mode="V")}),
    "rot": (lambda r: [gyro_number(r, "Rate"), r["Status"]], dict(Decimals=1, Rate=F(12.5), Status="A"),
            gyro_edges("Rate") | {"not valid": dict(Status="V")}),
    "att": (att, dict(Heading=F(123.4), Pitch=F(2.5), Roll=F(-1)), ATTITUDE_EDGES),
    "prdid": (numbers(*LAYOUTS["prdid"]), dict(Pitch=F(2.5), Roll=F(-1), Heading=F(123.4)), ATTITUDE_EDGES),
    "vhw": (numbers(*LAYOUTS["vhw"]),
            dict(Heading_True=F(45.6), Heading_Magnetic=F(7), Speed_Knots=F(5), Speed_Kmh=F(9.26)),
            {"at rest": dict(Speed_Knots=F(0), Speed_Kmh=F(0)), "astern": dict(Speed_Knots=F(-2.5), Speed_Kmh=F(-4.63)),
             "ties": dict(Heading_True=F(359.995), Heading_Magnetic=F(0.005), Speed_Knots=F(0.995), Speed_Kmh=F(99.995)),
             "all empty": all_empty("Heading_True", "Heading_Magnetic", "Speed_Knots", "Speed_Kmh")}),
    "vbw": (numbers(*LAYOUTS["vbw"]),
            dict(Water_Long=F(1.25), Water_Trans=F(0), Water_Status="A", Ground_Long=F(12), Ground_Trans=F(-0.5),
                 Ground_Status="A", Stern_Water=F(0), Stern_Water_Status="A", Stern_Ground=F(0),
                 Stern_Ground_Status="A"),
            {"each status in its place": dict(Water_Status="1", Ground_Status="2", Stern_Water_Status="3",
                                              Stern_Ground_Status="4"),
             "not valid": dict(Water_Status="V", Ground_Status="V", Stern_Water_Status="V", Stern_Ground_Status="V"),
             "all empty": all_empty("Water_Long", "Water_Trans", "Ground_Long", "Ground_Trans", "Stern_Water",
                                    "Stern_Ground")}),
    "vdr": (numbers(*LAYOUTS["vdr"]), dict(Set_True=F(5.25), Set_Magnetic=F(123.45), Drift=F(1.25)),
            {"no current": dict(Set_True=F(0), Set_Magnetic=F(0), Drift=F(0)),
             "not wrapped": dict(Set_True=F(359.95), Set_Magnetic=F(359.94)),
             "all empty": all_empty("Set_True", "Set_Magnetic", "Drift")}),
    "vlw": (vlw, dict(Log=1, Log_VLW_Seconds=10, Water_kn=F(12), Ground_kn=F(7.2), Log_Total_Water=F(0),
                      Log_Total_Ground=F(0), Log_Trip_Water=F(0), Log_Trip_Ground=F(0)),
            {"log 2": dict(Log=2, Log_Total_Water=F(1234.5), Log_Trip_Water=F(0.25)),
             "astern goes back": dict(Water_kn=F(-12), Ground_kn=F(-36), Log_Total_Water=F(1), Log_Trip_Water=F(0.05)),
             "no period": dict(Log_VLW_Seconds=0, Log_Total_Water=F(3), Log_Trip_Ground=F(2.5)),
             "a step that 32 bits swallow": dict(Log_Total_Water=F(1e6), Log_Trip_Water=F(16777216)),
             "all empty": dict(Log_VLW_Seconds=0) | all_empty("Log_Total_Water", "Log_Total_Ground", "Log_Trip_Water",
                                                             "Log_Trip_Ground")}),
    "dbt": (numbers(*LAYOUTS["dbt"]), dict(Depth_Feet=F(32.8083), Depth_Metres=F(10), Depth_Fathoms=F(EMPTY)),
            {"with fathoms": dict(Depth_Fathoms=F(5.468)), "aground": dict(Depth_Feet=F(0), Depth_Metres=F(0)),
             "all empty": all_empty("Depth_Feet", "Depth_Metres", "Depth_Fathoms")}),
    "dpt": (numbers(*LAYOUTS["dpt"]), dict(Depth=F(10), Offset=F(-1.5), Range=F(400)),
            {"one decimal": dict(Depth=F(7.25), Offset=F(0.35), Range=F(7.25)), "no offset": dict(Offset=F(0)),
             "all empty": all_empty("Depth", "Offset", "Range")}),
    "mwv": (numbers(*LAYOUTS["mwv"]),
            dict(Angle=F(45.6), Reference="R", Speed=F(7), Speed_Unit="N", Status="A"),
            {"metres per second": dict(Reference="T", Speed_Unit="M", Speed=F(12.25)),
             "kilometres per hour": dict(Speed_Unit="K", Speed=F(123.456)), "not valid": dict(Status="V"),
             "calm": dict(Angle=F(0), Speed=F(0)), "not wrapped": dict(Angle=F(359.996)),
             "all empty": all_empty("Angle", "Speed")}),
    "mwd": (numbers(*LAYOUTS["mwd"]),
            dict(Dir_True=F(45.6), Dir_Magnetic=F(7.25), Speed_Knots=F(7), Speed_Ms=F(7)),
            {"from 36 km/h": dict(Speed_Ms=F(10), Speed_Knots=F(19.438444924406046)),
             "all empty": all_empty("Dir_True", "Dir_Magnetic", "Speed_Knots", "Speed_Ms")}),
}
