"""What a screen reader is told, one JSON list a line: the kind of event, the role and name of what it is about, or
what is announced; or how the description of a control becomes another, for one that knows no announcements (--old).

A process of its own, because whoever listens has to wait for events all the time.
"""
import json
import sys

import pyatspi
from reader import role_of

KINDS = {"object:property-change:accessible-name": "name", "object:state-changed:focused": "focus",
         "object:announcement": "announcement"}
if sys.argv[1:] == ["--old"]:
    KINDS = {"object:property-change:accessible-description": "description"}


def tell(event):
    try:
        if event.type == "object:state-changed:focused" and not event.detail1:
            return  # the focus went away; where it goes is told next
        kind = KINDS[str(event.type).rstrip(":")]
        text = event.any_data if kind in ("announcement", "description") else event.source.name
        print(json.dumps([kind, role_of(event.source), text]), flush=True)
    except Exception:  # an object that went away before it could be asked
        pass


for kind in KINDS:
    pyatspi.Registry.registerEventListener(tell, kind)
print("listening", flush=True)
pyatspi.Registry.start()
