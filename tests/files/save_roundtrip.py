#!/usr/bin/env python3
"""Random projects through pilarix-cli: calculate and save (A), load A, calculate
and save (B); A and B must be the same bytes and the two runs must give the same
"Erros", "caixas" and "estado". Prints every project that differs.

    tests/files/save_roundtrip.py build-io/pilarix-cli [N] [SEED]
"""
import json, os, random, subprocess, sys, tempfile

CLI = os.path.abspath(sys.argv[1])
N = int(sys.argv[2]) if len(sys.argv) > 2 else 200
rnd = random.Random(int(sys.argv[3]) if len(sys.argv) > 3 else 1)
ACO = ["Aço CA-25A", "Aço CA-50A", "Aço CA-60A", "Aço CA-25B", "Aço CA-50B", "Aço CA-60B"]
EST = ["5 mm", "6.3 mm (1/4'')", "8 mm (5/16'')", "10 mm (3/8'')"]


def projeto():
    s = {
        "Text1": str(rnd.choice([12, 15, 20, 25, 30, 40, 60])), "Text2": str(rnd.choice([12, 20, 30, 50, 80])),
        "Text4": str(rnd.randint(2, 8)), "Text5": str(rnd.randint(2, 8)),
        "Text3": rnd.choice(["", "", "3", "4.5", "6"]), "Text16": str(rnd.randint(0, 3000)),
        "Text17": str(rnd.randint(0, 40000)), "Text18": str(rnd.choice([20, 25, 30, 40])),
        "Text23": str(rnd.choice([200, 300, 500])), "Combo1": rnd.choice(ACO),
        "Combo2": rnd.choice(["I", "II", "III", "IV"]), "Check1": rnd.choice("01"), "Check3": rnd.choice("01"),
        rnd.choice(["Option1", "Option2"]): "True", rnd.choice(["Option3", "Option5", "Option6"]): "True",
        "Combo3": rnd.choice(EST), "Check5": rnd.choice("01"),
    }
    args = ["--sem-padrao"]
    for k, v in s.items():
        args += ["--set", f"{k}={v}"]
    if rnd.random() < 0.2:
        args += ["--caso", f"a;{rnd.randint(0, 2000)};{rnd.randint(0, 30000)}",
                 "--caso", f"b;{rnd.randint(0, 2000)};{rnd.randint(0, 30000)}"]
    return args


def run(args):
    r = subprocess.run([CLI] + args + ["--json"], capture_output=True, timeout=120)
    d = json.loads(r.stdout) if r.stdout else {}
    return r.returncode, d


with tempfile.TemporaryDirectory() as tmp:
    os.chdir(tmp)
    diferentes = 0
    for i in range(N):
        args = projeto()
        st1, d1 = run(args + ["--salvar", "A.txt"])
        if st1 != 0:
            print(i, "A não gravado", args)
            continue
        st2, d2 = run(["--sem-padrao", "A.txt", "--salvar", "B.txt"])
        a, b = open("A.txt", "rb").read(), open("B.txt", "rb").read() if os.path.exists("B.txt") else b""
        campos = [k for k in ("Erros", "caixas", "estado") if d1.get(k) != d2.get(k)]
        if a != b or campos:
            diferentes += 1
            dif = {k: (d1["caixas"][k], d2["caixas"][k]) for k in d1.get("caixas", {})
                   if d1["caixas"][k] != d2.get("caixas", {}).get(k)}
            print(i, "bytes" if a != b else "", campos, dif, " ".join(args))
    print(f"{diferentes} de {N} diferem")
