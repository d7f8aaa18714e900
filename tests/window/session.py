"""The end of a desktop's session, as a session manager brings it about. Speaks the X Session Management Protocol over
the Inter-Client Exchange protocol, as much of it as one program needs."""

import os
import socket
import struct

from desktop import Failed, PATIENCE

BYTE_ORDER, CONNECTION_SETUP, CONNECTION_REPLY, PROTOCOL_SETUP, PROTOCOL_REPLY = 1, 2, 6, 7, 8  # of ICE
REGISTER, REGISTERED, SAVE_YOURSELF, INTERACT_REQUEST, SAVED, DIE = 1, 2, 3, 5, 8, 9  # of the session's protocol
ICE, SESSION = 0, 1  # major opcodes
GLOBAL, ANY_QUESTION = 0, 2


def string(text):
    """A STRING: its length, its bytes, and blanks up to a multiple of four."""
    raw = struct.pack("<H", len(text)) + text.encode()
    return raw + bytes(-len(raw) % 4)


def array8(text):
    raw = struct.pack("<I", len(text)) + text.encode()
    return raw + bytes(-len(raw) % 8)


class SessionManager:
    def __init__(self, desktop):
        path = desktop.folder / "session"
        self.listener = socket.socket(socket.AF_UNIX)
        self.listener.bind(str(path))
        self.listener.listen(1)
        self.listener.settimeout(PATIENCE)
        desktop.environment["SESSION_MANAGER"] = f"local/{os.uname().nodename}:{path}"
        self.program = None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for one in (self.program, self.listener):
            if one is not None:
                one.close()

    def welcome(self):
        """Takes the program into the session. To be called beside the start of the program, which waits for it."""
        self.program, _ = self.listener.accept()
        self.program.settimeout(PATIENCE)
        self._send(ICE, BYTE_ORDER)
        self._expect(ICE, BYTE_ORDER)
        self._expect(ICE, CONNECTION_SETUP)
        self._send(ICE, CONNECTION_REPLY, 0, string("test") + string("1"))
        self._expect(ICE, PROTOCOL_SETUP)
        self._send(ICE, PROTOCOL_REPLY, struct.pack("<BB", 0, SESSION), string("test") + string("1"))
        self._expect(SESSION, REGISTER)
        self._send(SESSION, REGISTERED, 0, array8("plexel"))

    def end(self):
        """Ends the session: has the program save, which it may ask about, and waits for that."""
        self._send(SESSION, SAVE_YOURSELF, 0, struct.pack("<BBBB4x", GLOBAL, True, ANY_QUESTION, False))
        minor, _ = self._expect(SESSION, SAVED, INTERACT_REQUEST)
        if minor == INTERACT_REQUEST:
            raise Failed("the editor wants to ask at the end of the session")

    def die(self):
        self._send(SESSION, DIE)

    def _send(self, major, minor, data=0, content=b""):
        words = data if isinstance(data, bytes) else struct.pack("<H", data)
        content += bytes(-len(content) % 8)
        self.program.sendall(struct.pack("<BB", major, minor) + words + struct.pack("<I", len(content) // 8) + content)

    def _expect(self, major, *minors):
        """Reads on to one of these messages."""
        while True:
            head = self._read(8)
            content = self._read(8 * struct.unpack_from("<I", head, 4)[0])
            if head[0] == major and head[1] in minors:
                return head[1], content
            if head[1] == 0:
                raise Failed(f"the session: error {head.hex()} {content.hex()}")

    def _read(self, count):
        read = b""
        while len(read) < count:
            part = self.program.recv(count - len(read))
            if not part:
                raise Failed("the program has left the session")
            read += part
        return read
