# The demo session of quillon-host: the ExtCommands module is loaded at start.
# What the module registered:
commands
# The main window appears. The module installs its translators, creates the Add-Ins tab,
# brings in the companions, adds its Help-menu entries and the publish entry, and shows the
# task pane.
mainframe create
# The Help-menu commands open the maker's pages (here reported, not opened in a browser).
CHECKFORUPDATES
RELEASENOTES
# Commands typed by local and by global name; TUTORIAL is never registered.
Home
_Community
TUTORIAL
# The first drawing becomes active: the crash-report companion runs its check once.
open plan.dxf
open plan.dxf
activate 1
# No Viewcast viewer is installed here: the task pane tells the user where to get it.
VIEWCAST
# The main window goes; the module takes its Help entries and the publish entry out again.
mainframe destroy
