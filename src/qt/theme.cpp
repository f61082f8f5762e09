#include "qt/theme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStyleFactory>
#include <QTranslator>

#include "qt/remembered.h"

namespace qt {
namespace {

QPalette palette() {
  using namespace theme;
  QPalette colours(panel);
  colours.setColor(QPalette::Window, panel);
  colours.setColor(QPalette::WindowText, ink);
  colours.setColor(QPalette::Base, paper);
  colours.setColor(QPalette::AlternateBase, paperAlternate);
  colours.setColor(QPalette::Text, ink);
  colours.setColor(QPalette::PlaceholderText, notice);
  colours.setColor(QPalette::Button, QColor(238, 246, 246));
  colours.setColor(QPalette::ButtonText, ink);
  colours.setColor(QPalette::Highlight, accent);
  colours.setColor(QPalette::HighlightedText, Qt::white);
  colours.setColor(QPalette::Link, accent);
  colours.setColor(QPalette::ToolTipBase, QColor(255, 255, 240));
  colours.setColor(QPalette::ToolTipText, ink);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    colours.setColor(QPalette::Disabled, role, faint);
  colours.setColor(QPalette::Disabled, QPalette::Base, QColor(226, 239, 239));
  return colours;
}

// No text colours of entry fields here: a field's own colour comes through its palette.
const char* const sheet = R"(
QLineEdit, QPlainTextEdit {
  background: #ffffff; border: 1px solid #5a8586; border-radius: 4px; padding: 3px 6px;
  selection-background-color: #0f6268; selection-color: white; }
QLineEdit:hover, QPlainTextEdit:hover { border-color: #5f9a9b; }
QLineEdit:focus, QPlainTextEdit:focus { border: 2px solid #0f6268; padding: 2px 5px; }
QLineEdit:disabled, QPlainTextEdit:disabled { background: #e2efef; border-color: #b9d3d3; }
QLineEdit[shown="true"] { background: transparent; border: 1px solid transparent; border-bottom-color: #b0cbcb;
  border-radius: 0; padding: 1px 2px; }
QLineEdit[recedes="true"]:!focus { background: transparent; border-color: #b9d3d3; }
QLineEdit[cell="true"] { border-radius: 2px; }
QGroupBox { border: 1px solid #b0cbcb; border-radius: 6px; margin-top: 10px; padding: 10px 4px 3px 4px;
  background: rgba(255, 255, 255, 90); }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 10px; padding: 0 4px; color: #0f6268; }
QFrame[role="lines"] { border: 1px solid #b0cbcb; border-radius: 6px; background: rgba(255, 255, 255, 90); }
QGroupBox QFrame[role="lines"] { border: none; background: transparent; }
QGroupBox QGroupBox { background: transparent; }
QTabWidget::pane { border: 1px solid #b0cbcb; border-radius: 4px; background: #e3f1f1; top: -1px; }
QTabBar::tab { background: transparent; border: 1px solid transparent; border-bottom: 2px solid transparent;
  padding: 7px 16px; margin-right: 2px; color: #45696c; }
QTabBar::tab:hover { color: #0f6268; border-bottom-color: #8fbcbc; }
QTabBar::tab:selected { color: #0f6268; border-bottom-color: #0f6268; font-weight: bold; }
QTabBar:focus { outline: none; }
QTabBar::tab:focus { border-color: #0f6268; }
QTableView, QTreeView, QListView { background: #ffffff; alternate-background-color: #f4fafa; border: 1px solid #b0cbcb;
  border-radius: 4px; gridline-color: #e3eded; outline: none;
  selection-background-color: #cbe6e5; selection-color: #0a4a50; }
QTableView:focus, QTreeView:focus { border: 1px solid #0f6268; }
QTableView::item { padding: 0 3px; border: none; }
QTreeView::item { padding: 3px 2px; }
QTreeView::item:hover:!selected { background: #e2f1f1; }
QHeaderView { background: #e6f1f1; border: none; }
QHeaderView::section { background: #e6f1f1; color: #345a5d; border: none; border-right: 1px solid #cfe0e0;
  border-bottom: 1px solid #b0cbcb; padding: 5px 6px; }
QTableCornerButton::section { background: #e6f1f1; border: none; }
QMenuBar { background: #e3f1f1; border-bottom: 1px solid #b0cbcb; padding: 1px 4px; }
QMenuBar::item { padding: 5px 12px; border-radius: 4px; background: transparent; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: #0f6268; color: white; }
QMenu { background: #ffffff; border: 1px solid #9dbfbf; padding: 4px; }
QMenu::item { padding: 6px 28px 6px 24px; border-radius: 3px; }
QMenu::item:selected { background: #0f6268; color: white; }
QMenu::item:disabled { color: #869c9f; background: transparent; }
QMenu::separator { height: 1px; background: #d5e4e4; margin: 4px 8px; }
QToolBar { background: #e3f1f1; border: none; border-bottom: 1px solid #b0cbcb; padding: 3px 6px; spacing: 2px; }
QToolBar QToolButton { border: 1px solid transparent; border-radius: 5px; padding: 4px 7px; color: #1b2a2e; }
QToolBar QToolButton:hover { background: #ffffff; border-color: #b0cbcb; }
QToolBar QToolButton:pressed { background: #cbe6e5; }
QToolBar QToolButton:disabled { color: #869c9f; }
QStatusBar { background: #e3f1f1; border-top: 1px solid #b0cbcb; }
QStatusBar::item { border: none; }
QStatusBar QLineEdit[shown="true"] { border: none; color: #45696c; }
QCheckBox, QRadioButton { spacing: 7px; padding: 1px; }
QCheckBox::indicator { width: 13px; height: 13px; border: 1px solid #5a8586; border-radius: 3px; background: #ffffff; }
QCheckBox::indicator:checked { image: url(:/icons/check.svg); }
QCheckBox::indicator:disabled { border-color: #b9d3d3; background: #e2efef; }
QCheckBox::indicator:hover { border-color: #0f6268; }
QCheckBox::indicator:focus { border: 2px solid #0f6268; width: 11px; height: 11px; }
QRadioButton::indicator { width: 13px; height: 13px; border: 1px solid #5a8586; border-radius: 7px; background: #ffffff; }
QRadioButton::indicator:checked { background: qradialgradient(cx:0.5, cy:0.5, radius:0.5, fx:0.5, fy:0.5,
  stop:0 #0f6268, stop:0.55 #0f6268, stop:0.65 #ffffff, stop:1 #ffffff); }
QRadioButton::indicator:disabled { border-color: #b9d3d3; }
QRadioButton::indicator:focus { border: 2px solid #0f6268; width: 11px; height: 11px; }
QPushButton { background: #f7fbfb; border: 1px solid #5a8586; border-radius: 4px; padding: 5px 14px; min-width: 60px; }
QPushButton:hover { border-color: #0f6268; background: #ddf0ef; }
QPushButton:pressed { background: #c4dedd; }
QPushButton:focus { border: 2px solid #0f6268; padding: 4px 13px; }
QPushButton:disabled { background: #e2ecec; border-color: #bed0d0; color: #869c9f; }
QProgressBar { border: 1px solid #9dbfbf; border-radius: 4px; background: #ffffff; text-align: center; min-height: 16px; }
QProgressBar::chunk { background: #4d9c9d; border-radius: 3px; }
QToolTip { background: #fffff0; color: #1b2a2e; border: 1px solid #9dbfbf; padding: 4px; }
QLabel[role="label"] { color: #45696c; }
QLabel[role="label"]:disabled { color: #869c9f; }
QLabel[role="heading"] { color: #0f6268; font-weight: bold; }
QLabel[role="notice"] { background: #fffff0; color: #1b2a2e; border: 1px solid #5a8586; border-radius: 4px; padding: 4px 8px; }
QLabel[role="note"] { color: #4a6164; }
QLabel[role="column"] { color: #345a5d; }
QScrollBar:vertical { background: transparent; width: 12px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 0; }
QScrollBar::handle { background: #6f9a9b; border-radius: 4px; margin: 2px; min-height: 28px; min-width: 28px; }
QScrollBar::handle:hover { background: #0f6268; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

}  // namespace

QFont faceFont(platform::Face face, double points) {
  // The small faces lack characters that names have; the later families hold them.
  QStringList families;
  switch (face) {
    case platform::Face::Song: families = {"Noto Serif CJK SC", "AR PL UMing CN"}; break;
    case platform::Face::Kai: families = {"AR PL UKai CN", "TW-Kai", "TW-Kai-Ext-B", "Noto Serif CJK SC"}; break;
    case platform::Face::Hei: families = {"Noto Sans CJK SC"}; break;
  }
  families << "Noto Sans CJK SC"
           << "TW-Kai-Ext-B";
  QFont font(families);
  font.setPointSizeF(points);
  return font;
}

QColor theme::meaning(const QString& word) {
  if (word == "不足") return QColor(138, 84, 0);
  if (word == "休学" || word == "休学中" || word.startsWith("已中断")) return stop;
  return {};
}

namespace {
const QString pointsKey = "text/points";
}

int textPoints() {
  return qBound(theme::leastPoints, remembered().value(pointsKey, theme::pointSize).toInt(), theme::mostPoints);
}

void setTextPoints(int points) {
  remembered().setValue(pointsKey, qBound(theme::leastPoints, points, theme::mostPoints));
  QApplication::setFont(faceFont(platform::Face::Hei, textPoints()));
}

int charactersWide(const QFontMetrics& metrics, int characters) {
  return metrics.horizontalAdvance(QStringLiteral("中")) * characters;
}

void applyTheme(QApplication& application) {
  QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
  application.setStyle(QStyleFactory::create("Fusion"));
  application.setPalette(palette());
  application.setFont(faceFont(platform::Face::Hei, textPoints()));
  application.setStyleSheet(sheet);
  auto* translator = new QTranslator(&application);
  if (translator->load("qtbase_zh_CN", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(translator);
}

}  // namespace qt
