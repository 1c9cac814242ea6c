#!/usr/bin/env python3
"""Writes the inputs of the golden corpus: runs of pilarix-cli and window sessions.

The corpus holds what the program answers today for a few thousand columns, so that
any change of code can be checked to change nothing a user sees. This script only
chooses the inputs (deterministically, from a fixed seed); the expected answers are
written by the golden test itself (PILARIX_GOLDEN_WRITE=1) from the code as it stands.

Line formats (fields separated by TAB):
  C <hash> <item> <item> ...          one run of pilarix-cli --sem-padrao --json, an item
                                      being Control=Value (--set) or --option[=value]
  S <hash> <step> <step> ...          one window session; a step is
                                      ACTION;Control=Value;Control=Value...
"""
import random
import sys

R = random.Random(20261123)

FORCA = ["Kgf", "Tf", "N", "KN"]
MOMENTO = ["Kgf.mm", "Kgf.cm", "Kgf.m", "Tf.mm", "Tf.cm", "Tf.m", "N.mm", "N.cm", "N.m", "KN.mm", "KN.cm", "KN.m"]
ACO = ["Aço CA-25A", "Aço CA-50A", "Aço CA-60A", "Aço CA-25B", "Aço CA-50B", "Aço CA-60B"]
ESTRIBO = ["5 mm", "6.3 mm (1/4'')", "8 mm (5/16'')", "10 mm (3/8'')"]
LONGITUDINAL = ["10 mm (3/8'')", "12.5 mm (1/2'')", "16 mm (5/8'')", "20 mm (3/4'')", "22.5 mm (7/8'')",
                "25 mm (1'')", "32 mm (1 1/4'')", "40 mm"]

# Factor of each force and moment unit to kgf and kgf.cm, to keep typed values sensible.
F_FORCA = {"Kgf": 1, "Tf": 1000, "N": 0.1, "KN": 100}
F_MOMENTO = {"Kgf.mm": 0.1, "Kgf.cm": 1, "Kgf.m": 100, "Tf.mm": 100, "Tf.cm": 1000, "Tf.m": 100000,
             "N.mm": 0.01, "N.cm": 0.1, "N.m": 10, "KN.mm": 10, "KN.cm": 100, "KN.m": 10000}


def num(x, decimals=2):
    """A number as a user types it: no trailing zeros, "." as the point."""
    s = f"{x:.{decimals}f}".rstrip("0").rstrip(".")
    return s if s not in ("-0", "") else "0"


def pick(weights):
    items = list(weights.items())
    r = R.random() * sum(w for _, w in items)
    for v, w in items:
        r -= w
        if r <= 0:
            return v
    return items[-1][0]


def section(small=False):
    b = pick({"": 1, "8": 2, "12": 3, "15": 5, "18": 4, "20": 20, "25": 12, "30": 10, "35": 5, "40": 6, "50": 3,
              "60": 2, "19.5": 2, "22.5": 1})
    if small:
        b = pick({"12": 2, "15": 3, "20": 8, "25": 5, "30": 4, "40": 2})
    bv = max(float(b or 0), 12)
    ratio = pick({1: 4, 1.25: 2, 1.5: 3, 2: 4, 2.5: 4, 3: 3, 4: 1, 5: 0.5, 5.05: 0.5, 6: 0.5})
    h = int(round(bv * ratio))
    if small:
        h = min(h, 80)
    return b, str(h)


def forces(area_cm2):
    """Nd and Md that span the zones: from tension through bending to high compression."""
    uf = pick({"KN": 12, "Tf": 3, "Kgf": 2, "N": 1})
    um = pick({"KN.cm": 10, "KN.m": 4, "Tf.m": 2, "Kgf.cm": 2, "Kgf.m": 1, "N.m": 1, "Tf.cm": 1, "N.mm": 1})
    sigcd = 121.4  # 0.85 * 200 / 1.4, kgf/cm2
    nu = pick({-0.3: 1, -0.05: 1, 0: 3, 0.05: 2, 0.2: 4, 0.4: 5, 0.6: 5, 0.8: 4, 0.95: 2, 1.1: 2, 1.4: 1, 2.0: 1})
    nu *= R.uniform(0.8, 1.2)
    mu = pick({0: 3, 0.002: 1, 0.02: 3, 0.05: 4, 0.1: 4, 0.2: 3, 0.35: 2, 0.6: 1})
    mu *= R.uniform(0.7, 1.3)
    h = (area_cm2 ** 0.5) * 1.3
    nd = nu * area_cm2 * sigcd / F_FORCA[uf]
    md = mu * area_cm2 * h * sigcd / F_MOMENTO[um]
    if R.random() < 0.05:
        nd = 0
    return uf, num(nd, 1), um, num(abs(md), 1)


def column(small=False):
    """The --set assignments of one column: every input of the window, mostly as an engineer types it."""
    s = []
    b, h = section(small)
    s += [("Text1", b), ("Text2", h)]
    area = max(float(b or 0), 12) * max(float(h), 12)
    if R.random() < 0.3:
        s.append(("Text23", str(R.choice([250, 280, 320, 400, 600]))))
    s.append(("Text4", pick({"2": 10, "3": 6, "4": 3, "5": 2, "6": 1, "0": 0.3, "1": 0.5, "9": 0.5, "20": 0.3})))
    s.append(("Text5", pick({"2": 6, "3": 6, "4": 8, "5": 4, "6": 3, "8": 2, "10": 1, "1": 0.5, "15": 0.5,
                             "30": 0.3})))
    s.append(("Text3", pick({"": 6, "3": 3, "4": 4, "4.05": 1, "2.5": 2, "5": 2, "6": 1, "3.5": 2})))
    if R.random() < 0.005:
        s.append(("Check3", "1"))
    uf, nd, um, md = forces(area)
    s += [("Combo4", uf), ("Text16", nd), ("Combo5", um), ("Text17", md)]
    fck = pick({"20": 10, "25": 8, "30": 6, "35": 3, "40": 3, "50": 2, "15": 1, "55": 1, "0": 0.5, "19.5": 0.5})
    if R.random() < 0.1:
        s += [("Combo6", "Kgf/cm2"), ("Text18", str(int(float(fck) * 10)))]
    else:
        s.append(("Text18", fck))
    if R.random() < 0.1:
        s += [("Combo7", "MPa"), ("Text20", pick({"210000": 5, "200000": 2, "0": 0.3}))]
    s.append(("Text21", pick({"1.5": 5, "1.4": 8, "1.3": 1, "0": 0.1})))
    s.append(("Text22", pick({"1.15": 10, "1.1": 1, "1": 1})))
    s.append(("Combo1", pick({ACO[0]: 2, ACO[1]: 10, ACO[2]: 3, ACO[3]: 1, ACO[4]: 3, ACO[5]: 2})))
    if R.random() < 0.3:
        s.append(("Option2", "True"))
    elif R.random() < 0.03:
        s.append(("Option1", "False"))
    s.append(("Combo2", pick({"I": 2, "II": 5, "III": 3, "IV": 2})))
    if R.random() < 0.3:
        s.append(("Check1", "1"))
    modo = pick({"Option3": 5, "Option5": 3, "Option6": 3})
    s.append((modo, "True"))
    if modo == "Option3":
        s.append(("Combo3", R.choice(ESTRIBO)))
    if R.random() < 0.4:
        s.append(("Check5", "1"))
    if R.random() < 0.4:
        s.append(("Option7(1)", "True"))
    s.append(("Form8.Text2", pick({"": 6, "1.9": 3, "2.5": 2, "3.8": 1, "5": 0.5})))
    s.append(("Form8.Text1", pick({"0.0001": 20, "0.001": 3, "0.00001": 3, "0.01": 0.5, "0.5": 0.2,
                                    "0": 0.1})))
    if R.random() < 0.2:
        s.append(("Form8.Combo1", R.choice(ESTRIBO)))
    if R.random() < 0.25:
        s.append(("Form8.Combo3", R.choice(LONGITUDINAL)))
    return s


# The values of the window at start: an assignment of one of them is left out.
DEFAULTS = {"Text23": "300", "Text4": "2", "Text5": "4", "Text3": "", "Combo4": "KN", "Combo5": "KN.cm",
            "Text18": "20", "Text21": "1.5", "Text22": "1.15", "Combo1": "Aço CA-50A", "Combo2": "II",
            "Option3": "True", "Combo3": "5 mm", "Form8.Text2": "", "Form8.Text1": "0.0001", "Text1": "20",
            "Text2": "50"}


def compact(sets):
    return [f"{k}={v}" for k, v in sets if DEFAULTS.get(k) != v]


def cli_case(melhor):
    items = compact(column(small=melhor))
    if R.random() < 0.3:
        items.append("--cobrimento=2")
    estribo = pick({"4": 5, "0": 2, "1": 2, "2": 1, "3": 1})
    if estribo != "4":
        items.append(f"--estribo={estribo}")
    if melhor:
        items.append("--melhor")
    return "C\t0\t" + "\t".join(items)


STEP_BUTTONS = ["Command2", "Command3", "Command4", "Command5", "Command13", "Command14", "Command15",
                "Command16", "SomaNd"]


def session():
    steps = []
    first = column(small=True)
    steps.append(";".join(["Calcula"] + compact(first)))
    searched = False
    for _ in range(R.randint(2, 7)):
        sets = []
        for _ in range(R.randint(0, 3)):
            k, v = R.choice(column(small=True))
            if k != "Check3":
                sets.append(f"{k}={v}")
        if R.random() < 0.2:
            sets.append(f"Text31={R.choice(['', '2', '5'])}")
            sets.append(f"Text32={R.choice(['', '5', '10'])}")
        action = pick({"Calcula": 10, "Passo": 4, "Melhor": 2, "Navega": 3, "Voltar8": 1, "Abrir": 1,
                       "Parede": 0.5, "FckZero": 0.5})
        if action == "Passo":
            action = R.choice(STEP_BUTTONS)
        elif action == "Melhor":
            searched = True
        elif action == "Navega":
            if not searched:
                action = "Calcula"
            else:
                action = pick({"Proxima": 3, "Anterior": 2, "Outras": 1, f"Escolhe:{R.randint(1, 12)}": 2})
                sets = []
        elif action == "Parede":
            action = "Calcula"
            sets += ["Text1=15", "Text2=90"]
        elif action == "FckZero":
            action = "Calcula"
            sets += ["Text18=0"]
        steps.append(";".join([action] + sets))
    return "S\t0\t" + "\t".join(steps)


def main():
    out = sys.stdout
    out.write("# Golden corpus of Pilarix: see generate_cases.py. Written by the golden test.\n")
    for _ in range(2000):
        out.write(cli_case(False) + "\n")
    for _ in range(350):
        out.write(cli_case(True) + "\n")
    for _ in range(300):
        out.write(session() + "\n")


if __name__ == "__main__":
    main()
