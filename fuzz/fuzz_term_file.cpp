// A term file on any bytes: the reader never crashes, every term is one line, and a list saved
// back reads as the same terms.
#include "FuzzSupport.h"
#include "shell/TextFile.h"
#include "shell/UserPreferences.h"
#include "terms/modFUT.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::WriteInput(kDefaultTermFile, data, size);
    UserPreferences prefs;
    modFUT terms(fuzz::services(), prefs);
    if (!terms.ReadFrequentlyUsedTerms()) {
        fuzz::Check(size > 0, "an empty file is an empty list");
        return 0;
    }
    const QStringList read = terms.Terms();
    for (const QString& term : read)
        fuzz::Check(!term.contains(u'\n') && !term.contains(u'\r'), "a term is one line");
    // A last term that is empty has no line of its own once saved, so such a list does not
    // come back whole; nor can a list holding a byte the code page leaves undefined be saved.
    if (read.isEmpty() || read.back().isEmpty() ||
        textfile::FirstUnstorableCharacter(read.join(u'\n')))
        return 0;
    fuzz::Check(terms.SaveFrequentlyUsedTerms(read), "a list read can be saved");
    fuzz::Check(terms.ReadFrequentlyUsedTerms() && terms.Terms() == read,
                "a list saved reads back the same");
    return 0;
}
