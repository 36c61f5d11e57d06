// The marker colours file on any bytes: the reader never crashes, and the categories it
// accepted are written back and read again unchanged.
#include "FuzzSupport.h"
#include "calendar/MarkerColors.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static MarkerColors colors;
    static MarkerColors again;
    Services& services = fuzz::services();
    fuzz::WriteInput(kMarkerColorsFile, data, size);
    colors.ReadMarkerColors(services);
    colors.SaveMarkerColors(services);
    again.ReadMarkerColors(services);
    fuzz::Check(again.entries() == colors.entries(), "saved colours read back unchanged");
    return 0;
}
