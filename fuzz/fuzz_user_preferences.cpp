// The preferences file on any bytes: the reader never crashes, and after a save every known
// key reads back with the value it had.
#include "FuzzSupport.h"
#include "shell/UserPreferences.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static UserPreferences prefs;
    static UserPreferences again;
    Services& services = fuzz::services();
    fuzz::WriteInput(kUserPreferencesFile, data, size);
    prefs.GetUserPreferences(services);
    prefs.SaveUserPreferences(services);
    again.GetUserPreferences(services);
    for (const QString& key : prefkey::All())
        fuzz::Check(again.Value(key) == prefs.Value(key), "saved preferences read back unchanged");
    return 0;
}
