"""Makes the site of the documentation. Usage: python3 tools/lib/site FOLDER"""
import pathlib
import sys

sys.dont_write_bytecode = True

from headers import HeaderError  # noqa: E402
from pages import SiteError, build  # noqa: E402

if len(sys.argv) != 2:
    sys.exit(__doc__)
try:
    build(pathlib.Path(__file__).resolve().parents[3], pathlib.Path(sys.argv[1]))
except (HeaderError, SiteError) as error:
    sys.exit(str(error))
