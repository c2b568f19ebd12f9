// The shared library's own record in the process: set up when it is loaded, taken down when it is unloaded.
