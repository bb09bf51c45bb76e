# SPDX-License-Identifier: MIT
"""A session manager for tests, as desktops run one: it speaks XSMP through libSM."""
import ctypes
import select
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p

SAVE_LOCAL, SAVE_BOTH = 1, 2
NO_INTERACTION, ANY_INTERACTION = 0, 2
RESTART_NEVER = 3

ICE = ctypes.CDLL("libICE.so.6")
SM = ctypes.CDLL("libSM.so.6")
for function in (ICE.IceComposeNetworkIdList, ICE.IceAcceptConnection, SM.SmsGenerateClientID):
    function.restype = c_void_p


class Value(ctypes.Structure):
    _fields_ = [("length", c_int), ("data", c_void_p)]


class Property(ctypes.Structure):
    _fields_ = [("name", c_char_p), ("type", c_char_p), ("count", c_int), ("values", POINTER(Value))]


class Callback(ctypes.Structure):
    _fields_ = [("function", c_void_p), ("data", c_void_p)]


# What a client asks for, in the order of libSM's SmsCallbacks.
REQUESTS = {
    "register": CFUNCTYPE(c_int, c_void_p, c_void_p, c_char_p),
    "interact": CFUNCTYPE(None, c_void_p, c_void_p, c_int),
    "interact_done": CFUNCTYPE(None, c_void_p, c_void_p, c_int),
    "save_request": CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_int, c_int, c_int, c_int),
    "phase2": CFUNCTYPE(None, c_void_p, c_void_p),
    "saved": CFUNCTYPE(None, c_void_p, c_void_p, c_int),
    "close": CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p),
    "set_properties": CFUNCTYPE(None, c_void_p, c_void_p, c_int, POINTER(POINTER(Property))),
    "delete_properties": CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p),
    "get_properties": CFUNCTYPE(None, c_void_p, c_void_p),
}
NEW_CLIENT = CFUNCTYPE(c_int, c_void_p, c_void_p, POINTER(c_ulong), POINTER(Callback * len(REQUESTS)), c_void_p)


class SessionManager:
    """Serves its clients whenever run() is called. It is at `address`, the SESSION_MANAGER of the environment. There is
    one in a process."""

    def __init__(self):
        self.clients = {}  # connections that registered: the name each brought along
        self.properties = {}  # of whichever client set them last
        self.saves = 0  # how often a client was done with saving
        self.is_ending = False
        self.asked = []  # for interaction, by a client that does not want to end at once
        self._keep = [kind(getattr(self, "_" + name)) for name, kind in REQUESTS.items()]
        self._new = NEW_CLIENT(self._new_client)
        self._allow = CFUNCTYPE(c_int, c_char_p)(lambda host: 1)
        self._gone = CFUNCTYPE(None, c_void_p)(lambda connection: None)
        ICE.IceSetIOErrorHandler(self._gone)
        error = ctypes.create_string_buffer(200)
        count, listeners = c_int(), POINTER(c_void_p)()
        assert SM.SmsInitialize(b"test", b"1", self._new, None, self._allow, 200, error), error.value
        assert ICE.IceListenForConnections(byref(count), byref(listeners), 200, error), error.value
        self._listeners = {ICE.IceGetListenConnectionNumber(c_void_p(listeners[i])): c_void_p(listeners[i])
                           for i in range(count.value)}
        for listener in self._listeners.values():
            ICE.IceSetHostBasedAuthProc(listener, self._allow)
        self.address = ctypes.string_at(ICE.IceComposeNetworkIdList(count, listeners)).decode()
        self._connections = {}

    def run(self):
        """Hears what was said so far."""
        while ready := select.select([*self._listeners, *self._connections], [], [], 0.02)[0]:
            for number in ready:
                if number in self._listeners:
                    status = c_int()
                    connection = c_void_p(ICE.IceAcceptConnection(self._listeners[number], byref(status)))
                    self._connections[ICE.IceConnectionNumber(connection)] = connection
                elif number in self._connections and ICE.IceProcessMessages(self._connections[number], None, None):
                    del self._connections[number]

    def begin_session(self):
        """Nobody is there yet."""
        self.clients.clear()
        self.is_ending = False

    def end_session(self):
        """Asks every client to save its work, as at the end of a session."""
        self.is_ending = True
        for client in self.clients:
            SM.SmsSaveYourself(c_void_p(client), SAVE_BOTH, 1, ANY_INTERACTION, 0)

    def let_go(self):
        """Tells every client to end."""
        for client in self.clients:
            SM.SmsDie(c_void_p(client))

    def _new_client(self, _connection, _data, mask, callbacks, _reason):
        mask[0] = (1 << len(REQUESTS)) - 1
        for place, function in enumerate(self._keep):
            callbacks.contents[place].function = ctypes.cast(function, c_void_p)
        return 1

    def _register(self, client, _data, name):
        if name and client not in self.clients:
            self.clients[client] = name.decode()
            return 0  # of a session that nobody knows: it asks again, without a name
        self.clients.setdefault(client, "")
        SM.SmsRegisterClientReply(c_void_p(client), c_void_p(SM.SmsGenerateClientID(c_void_p(client))))
        SM.SmsSaveYourself(c_void_p(client), SAVE_LOCAL, 0, NO_INTERACTION, 0)
        return 1

    def _saved(self, client, _data, _success):
        self.saves += 1
        if not self.is_ending:
            SM.SmsSaveComplete(c_void_p(client))

    def _interact(self, client, _data, kind):
        self.asked.append(kind)

    def _interact_done(self, *_):
        pass

    def _save_request(self, *_):
        pass

    def _phase2(self, client, _data):
        SM.SmsSaveYourselfPhase2(c_void_p(client))

    def _close(self, client, *_):
        self.clients.pop(client, None)

    def _set_properties(self, _client, _data, count, properties):
        for i in range(count):
            entry = properties[i].contents
            self.properties[entry.name.decode()] = [ctypes.string_at(value.data, value.length)
                                                    for value in entry.values[:entry.count]]

    def _delete_properties(self, *_):
        pass

    def _get_properties(self, client, _data):
        SM.SmsReturnProperties(c_void_p(client), 0, None)
