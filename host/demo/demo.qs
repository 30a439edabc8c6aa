# The demo session of quillon-host: the ExtCommands module is loaded at start.
# What the module registered:
commands
# The main window appears; the module does its work on it.
mainframe create
# Commands typed by the user, by local and by global name. TUTORIAL is never registered.
Home
_Community
TUTORIAL
# The first drawing becomes active: the crash-report companion runs its check once.
open plan.dxf
open plan.dxf
activate 1
# The main window goes.
mainframe destroy
