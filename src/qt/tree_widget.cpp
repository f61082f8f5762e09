#include <QApplication>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTreeWidget>

#include "qt/member_widgets.h"
#include "qt/text.h"

namespace qt {
namespace {

constexpr int keyRole = Qt::UserRole;

void addNodes(QTreeWidgetItem& parent, const std::vector<kit::TreeNode>& nodes) {
  for (const kit::TreeNode& node : nodes) {
    auto* item = new QTreeWidgetItem(&parent, {toQt(node.text)});
    item->setData(0, keyRole, toQt(node.key));
    addNodes(*item, node.children);
  }
}

bool sameNodes(const QTreeWidgetItem& parent, const std::vector<kit::TreeNode>& nodes) {
  if (parent.childCount() != static_cast<int>(nodes.size())) return false;
  for (int i = 0; i < parent.childCount(); ++i) {
    const QTreeWidgetItem& item = *parent.child(i);
    const kit::TreeNode& node = nodes[static_cast<std::size_t>(i)];
    if (item.text(0) != toQt(node.text) || item.data(0, keyRole).toString() != toQt(node.key) ||
        !sameNodes(item, node.children))
      return false;
  }
  return true;
}

QTreeWidgetItem* findItem(QTreeWidgetItem& parent, const QString& key) {
  for (int i = 0; i < parent.childCount(); ++i) {
    QTreeWidgetItem& item = *parent.child(i);
    if (item.data(0, keyRole).toString() == key) return &item;
    if (QTreeWidgetItem* below = findItem(item, key)) return below;
  }
  return nullptr;
}

class TreeLink : public QObject {
 public:
  TreeLink(kit::Tree& tree, QTreeWidget& view) : QObject(&view), tree_(tree), view_(view) {
    connect(&view, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) { click(item); });
    connect(&view, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
      if (!QApplication::mouseButtons()) click(item);
    });
    connect(&view, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
      if (!QApplication::mouseButtons()) click(item);  // by the arrow keys; a click tells when it is done
    });
  }

  void show() {
    const QScopedValueRollback quiet(showing_, true);
    if (!sameNodes(*view_.invisibleRootItem(), tree_.nodes())) {
      view_.clear();
      addNodes(*view_.invisibleRootItem(), tree_.nodes());
      if (tree_.nodes().size() == 1) view_.expandToDepth(0);
    }
    const kit::TreeNode* selected = tree_.selected();
    QTreeWidgetItem* item = selected ? findItem(*view_.invisibleRootItem(), toQt(selected->key)) : nullptr;
    if (view_.currentItem() != item) view_.setCurrentItem(item);
  }

 private:
  void click(QTreeWidgetItem* item) {
    if (!showing_ && item && tree_.reachable()) tree_.click(fromQt(item->data(0, keyRole).toString()));
  }

  kit::Tree& tree_;
  QTreeWidget& view_;
  bool showing_ = false;
};

}  // namespace

QWidget* treeWidget(kit::Tree& tree, Renderer& renderer) {
  auto* view = new QTreeWidget;
  view->setHeaderHidden(true);
  renderer.bind(tree, view);
  renderer.listen(tree, view);
  auto* link = new TreeLink(tree, *view);
  renderer.follow(tree, [link] { link->show(); });
  return view;
}

}  // namespace qt
