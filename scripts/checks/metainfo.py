"""Validates with appstreamcli what software centres show about Vantle."""

from .repository import Problem, files, output_of, require

WHAT = "metainfo by appstreamcli, without the network"
REPAIR = "appstreamcli explain TAG, then by hand"


def problems(_everything, note):
    paths = files("*.metainfo.xml", "*.metainfo.xml.in", "*.appdata.xml")
    note(f"looked at {', '.join(paths) or 'none'}")
    if not paths:
        return
    require("appstreamcli", "appstream")
    for path in paths:
        output, status = output_of("appstreamcli", "validate", "--strict", "--no-net",
                                   "--override=unknown-tag=pedantic",  # <developer> on Debian 12
                                   "--no-color", path)
        if status:
            yield Problem(path, None, output.strip())
