# make run   - install what is missing, build, start the window
# make test  - install what is missing, build, run every test (headless), also
#              the core's tests under AddressSanitizer and UndefinedBehaviorSanitizer
# make bench - install what is missing, build optimised, run the benchmarks
# make install - build the two programs and install them with their desktop entry,
#              icon, MIME type and manual pages (PREFIX=/usr/local, DESTDIR honoured)
# make deb   - build the Debian package pilarix_VERSION_ARCH.deb and print its path
# make imagens - the pictures the README links (docs/imagens/), made again from the
#              programs in $(BUILD) (build/, made with "make programs" when missing)

PACKAGES := cmake make g++ pkg-config qt6-base-dev libgl-dev libgtest-dev libgmock-dev \
            libbenchmark-dev nlohmann-json3-dev libdxflib-dev qt6-svg-dev python3-ezdxf \
            poppler-utils qt6-translations-l10n dpkg-dev desktop-file-utils shared-mime-info groff-base
JOBS ?= $(shell nproc 2>/dev/null || echo 2)
PREFIX ?= /usr/local

.PHONY: run test bench deps build build-asan cli clean programs install deb imagens

deps:
	@missing=""; \
	for p in $(PACKAGES); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q "install ok installed" || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Pacotes em falta:$$missing"; \
	  if [ "$$(id -u)" = "0" ]; then \
	    apt-get update && DEBIAN_FRONTEND=noninteractive apt-get install -y $(PACKAGES); \
	  else \
	    echo "Execute como root:"; \
	    echo "  apt-get update && apt-get install -y $(PACKAGES)"; \
	    exit 1; \
	  fi; \
	fi

build: deps
	cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
	cmake --build build -j $(JOBS)

build-asan: deps
	cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DPILARIX_UI=OFF -DPILARIX_SANITIZE=ON
	cmake --build build-asan -j $(JOBS)

run: build
	@if [ -x build/pilarix ]; then ./build/pilarix; else ./build/pilarix-cli; fi

test: build build-asan
	cd build && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)
	cd build-asan && ctest --output-on-failure -j $(JOBS)

bench: deps
	cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DPILARIX_UI=OFF -DPILARIX_TESTS=OFF -DPILARIX_BENCH=ON
	cmake --build build-bench -j $(JOBS)
	./build-bench/bench/pilarix_bench

# Only the two programs: the tests are not built to install or to package.
programs: deps
	cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
	cmake --build build -j $(JOBS) --target pilarix pilarix-cli

install: programs
	DESTDIR="$(DESTDIR)" cmake --install build --prefix "$(PREFIX)" --strip
	@# Installed for real (no DESTDIR), the desktop learns the new type, entry and icon
	@# now; a package leaves that to the triggers of shared-mime-info and the others.
	@if [ -z "$(DESTDIR)" ]; then \
	  ! command -v update-mime-database >/dev/null || update-mime-database "$(PREFIX)/share/mime"; \
	  ! command -v update-desktop-database >/dev/null || update-desktop-database -q "$(PREFIX)/share/applications"; \
	  ! command -v gtk-update-icon-cache >/dev/null || gtk-update-icon-cache -q -t -f "$(PREFIX)/share/icons/hicolor"; \
	fi

deb: programs
	cd build && cpack -G DEB
	@echo "Pacote: $$(ls -t $(CURDIR)/build/pilarix_*.deb | head -n 1)"

BUILD ?= build
IMAGENS := $(CURDIR)/docs/imagens
# Two load cases and the heading of the work: the report and the diagram then show
# every part they have.
EXEMPLO := --caso "topo;400;10000" --caso "vento;500;15000" --set Obra="Edifício Exemplo" \
           --set Cliente="Construtora Exemplo" --set Pilar=P1 --set Engenheiro="Eng. Responsável" --set Revisao=R0

# The textbook's 20 × 50 cm column by ABNT NBR 6118:2014, second order in the
# direction of h, and a wind case with moments at both ends in both directions.
EXEMPLO2014 := --norma 2014 --set Text1=50 --set Text2=20 --set Text3=4 --set Text4=4 --set Text5=2 \
           --set Text16=1400 --set Text17=0 --set Text18=30 --set Text21=1.4 --set Text23=280 \
           --caso "1;1400;0;0;3000;-1500" --caso "vento;1000;2500;-1000;4000;2000"

# In an empty folder, so that the window starts from its built-in defaults and no
# "Padrão.txt" of the working tree is read or written.
imagens:
	@test -x $(BUILD)/pilarix -a -x $(BUILD)/pilarix-cli || $(MAKE) programs
	@set -e; bin="$$(cd $(BUILD) && pwd)"; tmp="$$(mktemp -d)"; trap 'rm -rf "$$tmp"' EXIT; cd "$$tmp"; \
	mkdir -p $(IMAGENS); rm -f $(IMAGENS)/memorial-*.png $(IMAGENS)/norma2014-memorial-*.png; \
	export QT_QPA_PLATFORM=offscreen; \
	QT_SCALE_FACTOR=1 "$$bin/pilarix" --screenshot $(IMAGENS)/janela-1366x768.png --tela 1366x768 2>/dev/null; \
	QT_SCALE_FACTOR=1.5 "$$bin/pilarix" --screenshot $(IMAGENS)/janela-1366x768-150.png --tela 1366x768 2>/dev/null; \
	"$$bin/pilarix" --screenshot $(IMAGENS)/diagrama.png --dialogo diagrama 2>/dev/null; \
	"$$bin/pilarix-cli" --sem-padrao $(EXEMPLO) --salvar casos.txt --desenho $(IMAGENS)/secao.png \
	  --memorial memorial.pdf >/dev/null; \
	"$$bin/pilarix" --screenshot $(IMAGENS)/combinacoes.png casos.txt --dialogo casos 2>/dev/null; \
	"$$bin/pilarix" --screenshot $(IMAGENS)/combinacoes-diagrama.png casos.txt --dialogo diagrama 2>/dev/null; \
	pdftoppm -png -r 60 memorial.pdf $(IMAGENS)/memorial; \
	"$$bin/pilarix-cli" --sem-padrao $(EXEMPLO2014) --salvar norma2014.txt --memorial norma2014.pdf >/dev/null; \
	QT_SCALE_FACTOR=1 "$$bin/pilarix" --screenshot $(IMAGENS)/norma2014-janela.png norma2014.txt --tela 1366x768 2>/dev/null; \
	QT_SCALE_FACTOR=1.5 "$$bin/pilarix" --screenshot $(IMAGENS)/norma2014-janela-150.png norma2014.txt --tela 1366x768 2>/dev/null; \
	"$$bin/pilarix" --screenshot $(IMAGENS)/norma2014-mxmy.png norma2014.txt --dialogo mxmy 2>/dev/null; \
	"$$bin/pilarix" --screenshot $(IMAGENS)/norma2014-casos.png norma2014.txt --dialogo casos 2>/dev/null; \
	pdftoppm -png -r 60 -f 2 -l 4 norma2014.pdf $(IMAGENS)/norma2014-memorial
	@# Every picture the README links is there, and none is heavy.
	@for f in $$(grep -o '(docs/imagens/[^)]*)' README.md | tr -d '()'); do test -f "$$f" || { echo "falta $$f"; exit 1; }; done
	@ls -l $(IMAGENS)/*.png | awk '{ if ($$5 > 153600) { print "grande demais: " $$9; bad = 1 } } END { exit bad }'

clean:
	rm -rf build build-asan build-bench
