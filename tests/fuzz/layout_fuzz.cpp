#include "app/menulayout.h"
#include "core/runtimeerror.h"
#include "tests/fuzz/inputfile.h"

// A layout, whose commands all have ids, or the error of a file that is none.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    try {
        const MenuLayout layout = MenuLayout::read(InputFile(data, size).path());
        for (const MenuLayout::Menu &menu : layout.menus + layout.toolBars) {
            for (const MenuLayout::Entry &entry : menu.entries)
                require(entry.id >= 0);
        }
    } catch (const RuntimeError &error) {
        require(error.number() == ErrorNumber::InvalidFileFormat);
    }
    return 0;
}
