// Redirect files: the target is a line of the text, mode and state are known ones.

#include "quiet.h"

#include "theme/IconRedirect.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    catchMessages();
    QString text = textOf(data, size);
    const auto redirect = IconRedirect::parse(text);
    if (!redirect)
        return 0;
    require(!redirect->target.isEmpty());
    for (const QChar sign : {u'\n', u'\r', u'\t'})
        require(!redirect->target.contains(sign));
    require(redirect->mode >= QIcon::Normal && redirect->mode <= QIcon::Selected);
    require(redirect->state == QIcon::On || redirect->state == QIcon::Off);
    text.remove(u'\r').remove(u'\t');
    require(redirect->state == QIcon::Off || text.contains(QLatin1String("active")));
    return 0;
}
