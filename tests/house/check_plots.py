"""The pictures of docs/performance.md show the figures of its tables."""
import sys

from tree import ROOT, finish

sys.path.insert(0, str(ROOT / "tools/lib"))
sys.dont_write_bytecode = True
import plot_bench  # pylint: disable=wrong-import-position

finish([f"{name}: not what tools/lib/plot_bench.py draws from the tables"
        for name, drawn in plot_bench.pictures().items()
        if not (plot_bench.FOLDER / name).is_file()
        or (plot_bench.FOLDER / name).read_text(encoding="utf-8") != drawn])
