// The Velmora program. Until the frame with its graph windows exists, the
// program shows its main window with an empty document area.
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Velmora"));
  QApplication::setApplicationName(QStringLiteral("Velmora"));

  QMainWindow frame;
  frame.setWindowTitle(QStringLiteral("Velmora"));
  frame.setCentralWidget(new QMdiArea(&frame));
  frame.resize(1024, 700);
  frame.show();
  return QApplication::exec();
}
