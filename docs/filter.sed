# What doxygen reads of the Markdown files: it finds pictures by their names alone.
s,](\(\.\./\)*\([a-z-]*\.png\)),](\2),g
