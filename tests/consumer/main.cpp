#include <ZelCore/ZelSettings>
#include <ZelWidgets/ZelFontMetrics>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelResources>

#include <QApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    ZelSettings("consumer").setValue("answer", 42);
    const bool stored = ZelSettings("").value("consumer.answer").toInt() == 42;
    const bool resources =
        zelmorawidgets_init_resources() == 1 && QFile::exists(":/ui/icons/search.svg");
    ZelPushButton button(QString("Hello"));
    button.show();
    const bool ranked = button.property("rank").toString() == "Secondary";
    const int editorHeight = ZelFontMetrics(&button).editorHeight();
    std::printf("stored %d, resources %d, ranked %d, editor height %d\n", stored, resources, ranked,
                editorHeight);
    return stored && ranked && resources && editorHeight > 0 ? 0 : 1;
}
