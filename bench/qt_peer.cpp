#include "qt_peer.h"

#include "bench.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QTableWidget>
#include <QTextLayout>
#include <QTreeWidget>

namespace qt_peer {

void Start(int& argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(argc, argv);  // for the life of the process
}

double Append(int nItems, const char* pszText) {
    QTreeWidget tree;
    tree.setUpdatesEnabled(false);
    const QString text = QString::fromLatin1(pszText);
    return bench::Time([&] {
        for (int i = 0; i < nItems; ++i) {
            auto* pItem = new QTreeWidgetItem;
            pItem->setText(0, text);
            tree.addTopLevelItem(pItem);
        }
    });
}

double ExpandAll(int nRoots, int nMiddle, int nLeaves) {
    QTreeWidget tree;
    tree.setUniformRowHeights(true);
    tree.resize(400, 600);
    QList<QTreeWidgetItem*> roots;
    for (int i = 0; i < nRoots; ++i) {
        auto* pRoot = new QTreeWidgetItem(QStringList("root"));
        for (int k = 0; k < nMiddle; ++k) {
            auto* pMiddle = new QTreeWidgetItem(pRoot, QStringList("middle"));
            for (int m = 0; m < nLeaves; ++m) {
                new QTreeWidgetItem(pMiddle, QStringList("leaf"));
            }
        }
        roots.append(pRoot);
    }
    tree.addTopLevelItems(roots);
    tree.show();
    QApplication::processEvents();
    return bench::Time([&] {
        tree.expandAll();
        tree.scrollToBottom();  // wants the layout
        QApplication::processEvents();
    });
}

double Sort(const std::vector<std::string>& texts) {
    QTreeWidget tree;
    auto* pParent = new QTreeWidgetItem(&tree);
    QList<QTreeWidgetItem*> items;
    for (const std::string& strText : texts) {
        items.append(new QTreeWidgetItem(QStringList(QString::fromStdString(strText))));
    }
    pParent->addChildren(items);
    return bench::Time([&] { pParent->sortChildren(0, Qt::AscendingOrder); });
}

double FillTable(const std::vector<std::string>& rows, int nColumns) {
    QList<QStringList> texts;
    for (const std::string& strRow : rows) {
        texts.append(QString::fromStdString(strRow).split('\t'));
    }
    QTableWidget table;
    table.setUpdatesEnabled(false);
    return bench::Time([&] {
        table.setColumnCount(nColumns);
        table.setRowCount(static_cast<int>(texts.size()));
        for (int nRow = 0; nRow < texts.size(); ++nRow) {
            for (int nCol = 0; nCol < nColumns; ++nCol) {
                table.setItem(nRow, nCol, new QTableWidgetItem(texts.at(nRow).at(nCol)));
            }
        }
    });
}

double WrapLines(const std::vector<std::string>& lines, int nChars, int& nRows) {
    QList<QString> texts;
    for (const std::string& strLine : lines) {
        texts.append(QString::fromStdString(strLine));
    }
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const qreal nWidth = QFontMetricsF(font).horizontalAdvance(QString(nChars, 'x'));
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    nRows = 0;
    return bench::Time([&] {
        for (const QString& text : texts) {
            QTextLayout layout(text, font);
            layout.setTextOption(option);
            layout.beginLayout();
            for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
                line.setLineWidth(nWidth);
                ++nRows;
            }
            layout.endLayout();
        }
    });
}

}  // namespace qt_peer
