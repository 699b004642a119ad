"""A window of another program that accepts drops and behaves as the test says."""

import contextlib
import threading

from Xlib import X, Xatom, display
from Xlib.protocol import event

_VERSION = 5


class DropTarget:
    """Takes one type of data. `behaviour`:

    "take"    takes the data
    "deny"    promises to take the data, but reports afterwards that it did not
    "early"   requests the data when the drag enters, without a time, and takes it
    "ignore"  reports that it took the data, but reads nothing
    "die"     promises to take the data, and is gone at the drop
    "refuse"  promises nothing
    """

    def __init__(self, desktop, frame, wanted="text/uri-list", behaviour="take"):
        self._display = display.Display(desktop.environment["DISPLAY"])
        desktop.keep(self._display)
        self._wanted = wanted
        self._behaviour = behaviour
        self._source = None
        self.offered = []
        self.received = None
        self.is_promised = False
        root = self._display.screen().root
        self._window = root.create_window(
            frame.x, frame.y, frame.width, frame.height, 0, X.CopyFromParent,
            background_pixel=0x60A060, override_redirect=True,
            event_mask=X.PropertyChangeMask,
        )  # fmt: skip
        self._window.change_property(self._atom("XdndAware"), Xatom.ATOM, 32, [_VERSION])
        self._window.map()
        self._display.sync()

    def _atom(self, name):
        return self._display.intern_atom(name)

    def serve(self):
        """Answers the events that have arrived; must be called again and again."""
        while self._display.pending_events():
            self._handle(self._display.next_event())

    def _handle(self, message):
        if message.type == X.SelectionNotify:
            self._receive(message)
        if message.type != X.ClientMessage:
            return
        name = self._display.get_atom_name(message.client_type)
        data = message.data[1]
        if name == "XdndEnter":
            self._enter(data)
        elif name == "XdndPosition":
            if self._behaviour == "early" and self.received is None:
                self._ask(X.CurrentTime)
            self._answer("XdndStatus", 0 if self._behaviour == "refuse" else 1)
            self.is_promised = self._behaviour != "refuse"
        elif name == "XdndDrop":
            self._dropped(data)

    def _enter(self, data):
        self._source = self._display.create_resource_object("window", data[0])
        types = [atom for atom in data[2:] if atom]
        if data[1] & 1:
            types = self._source.get_full_property(self._atom("XdndTypeList"), Xatom.ATOM).value
        self.offered = [self._display.get_atom_name(atom) for atom in types]

    def _dropped(self, data):
        if self._behaviour == "die":
            self._window.destroy()
            self._display.sync()
        elif self._behaviour in ("deny", "ignore"):
            self._answer("XdndFinished", 1 if self._behaviour == "ignore" else 0)
        elif self._behaviour == "early":
            self._answer("XdndFinished", 1 if self.received else 0)
        else:
            self._ask(data[2])

    def _ask(self, time):
        self._window.convert_selection(
            self._atom("XdndSelection"), self._atom(self._wanted), self._atom("DROPPED"), time
        )
        self._display.sync()

    def _receive(self, message):
        if message.property:
            answer = self._window.get_full_property(message.property, X.AnyPropertyType)
            self.received = answer.value
        if self._behaviour != "early":
            self._answer("XdndFinished", 1 if self.received else 0)

    def _answer(self, name, flags):
        action = self._atom("XdndActionCopy") if flags else 0
        data = [self._window.id, flags, 0, 0, action] if name == "XdndStatus" else [
            self._window.id, flags, action, 0, 0,
        ]
        message = event.ClientMessage(
            window=self._source, client_type=self._atom(name), data=(32, data)
        )
        self._source.send_event(message)
        self._display.sync()

    def die(self):
        """Vanishes while something is dragged over it."""
        self._window.destroy()
        self._display.sync()


@contextlib.contextmanager
def served(target):
    """The target answers by itself during the with statement."""
    ended = threading.Event()

    def serve():
        while not ended.wait(0.01):
            target.serve()

    thread = threading.Thread(target=serve)
    thread.start()
    try:
        yield
    finally:
        ended.set()
        thread.join()
