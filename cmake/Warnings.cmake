add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wconversion
                    -Wno-sign-conversion -Wimplicit-fallthrough -Wnull-dereference)
