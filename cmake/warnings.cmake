# Warnings are errors, for every target of the project.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
                    -Wnon-virtual-dtor -Woverloaded-virtual -Wdouble-promotion
                    -Wimplicit-fallthrough -Werror)
