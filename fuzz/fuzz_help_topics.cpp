// The help topics on any bytes: splitting never crashes, and loading the file gives the topics
// of its decoded text.
#include "FuzzSupport.h"
#include "help/modHelp.h"
#include "shell/TextFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static HelpTopics help;
    const QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QList<HelpTopic> topics = HelpTopics::Parse(textfile::Decode(bytes));
    fuzz::WriteInput(kHelpFileName, data, size);
    help.LoadHelpTopics(fuzz::services());
    fuzz::Check(help.topics().size() == topics.size(), "the file gives the topics of its text");
    return 0;
}
