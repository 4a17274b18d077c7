// empty_qt_window: the baseline of the start-up benchmark. A plain Qt 6 Widgets
// window with a display line and a few buttons that do nothing, started the way
// any Qt Widgets program starts. What a real program costs beyond this is its own.
#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QString>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication app(argc, argv);

  QWidget window;
  window.setWindowTitle(QStringLiteral("Empty Qt window"));
  auto* layout = new QGridLayout(&window);
  auto* display = new QLineEdit(QStringLiteral("0"), &window);
  display->setReadOnly(true);
  display->setAlignment(Qt::AlignRight);
  layout->addWidget(display, 0, 0, 1, 4);
  const char* const captions[] = {"7", "8", "9", "/", "4", "5", "6", "*",
                                  "1", "2", "3", "-", "0", ".", "=", "+"};
  int index = 0;
  for (const char* caption : captions) {
    layout->addWidget(new QPushButton(QString::fromLatin1(caption), &window), 1 + index / 4,
                      index % 4);
    ++index;
  }
  window.show();
  return QApplication::exec();
}
