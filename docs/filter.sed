# What doxygen reads of the Markdown files. It finds pictures by their names alone, and looks for documents
# from the root of the sources first: with the path from the chapter it would find one outside where the
# sources lie within others, as the copy does that packages are made from.
s,](\(\.\./\)*\([a-z-]*\.png\)),](\2),g
s,](\(\.\./\)*CONTRIBUTING\.md),](CONTRIBUTING.md),g
s,](\(\.\./\)\{1\,2\}\([A-Z]*\.md\)),](docs/\2),g
