// The expected controls of each dialog.
#pragma once

#include <vector>

#include "platform/framework/window/DialogTemplate.h"

using enum tq::ControlKind;

struct Expected {
  tq::ControlKind kind;
  int id;
  const char* traditional = "";
  const char* simplified = "";
  unsigned style = 0;
};

using Rows = std::vector<Expected>;

struct ExpectedTemplate {
  int id;
  const char* traditional;
  const char* simplified;
  Rows rows; // in any order
};

inline const Rows kListOfLists = {
    {ListBox, 782, "", "", tq::TemplateOwnerDrawn},
    {Edit, 741, "", "", tq::TemplateHidden},
    {Button, 801, "新增(&A)", "新增(&A)"},
    {Button, 802, "修改(&M)", "修改(&M)"},
    {Button, 803, "刪除(&D)", "删除(&D)"},
    {Button, 804, "重新命名(&R)", "重新命名(&R)"},
    {Button, 806, "完成(&K)", "完成(&K)", tq::TemplateDefault},
    {Button, 807, "", "", tq::TemplateIcon},
    {Button, 808, "", "", tq::TemplateIcon},
};

inline const Rows kContents = {
    {ListBox, 781, "", "", tq::TemplateMulti | tq::TemplateOwnerDrawn},
    {Button, 801, "", "", tq::TemplateIcon},
    {Button, 802, "", "", tq::TemplateIcon},
    {Button, 803, "", "", tq::TemplateIcon},
    {Button, 804, "代碼順序", "代码顺序"},
    {Label, 0, "市場 / 類別", "市场 / 类别"},
    {ComboBox, 761},
    {Label, 0, "產業 / 組合 ", "产业 / 组合 "},
    {ComboBox, 762},
    {Button, 807, "全部加入", "全部加入"},
    {Label, 0, "代碼 / 名稱", "代码 / 名称"},
    {Edit, 741},
    {Button, 806, "", "", tq::TemplateIcon},
    {Button, 805, "查詢", "查询"},
    {ListView, 782, "", "", tq::TemplateVirtual},
    {Label, 0, "名稱(&N)", "名称(&N)"},
    {Edit, 742},
    {Button, 1, "完成(&K)", "完成(&K)", tq::TemplateDefault},
    {Button, 2, "取消(&C)", "取消(&C)"},
};

inline const Rows kSubTitle = {
    {Label, 0, "次標題", "次标题"},
    {Edit, 743},
    {Button, 808, "", "", tq::TemplateIcon},
};

inline const Rows kSearch = {
    {Label, 0, "市場/類別", "市场/类别"},    {ComboBox, 761},
    {Label, 0, "產業/組合", "产业/组合"},    {ComboBox, 762},
    {Label, 0, "代碼/名稱", "代码/名称"},    {Edit, 741},
    {Button, 801, "", "", tq::TemplateIcon}, {ListView, 781, "", "", tq::TemplateVirtual},
};

inline const Rows kSet = {
    {ComboBox, 761},
    {ListBox, 781},
    {Button, 801, "新增(&A)", "新增(&A)"},
    {Button, 802, "修改(&E)", "修改(&E)"},
    {Button, 803, "刪除(&D)", "删除(&D)"},
    {Button, 1, "確定(&K)", "确定(&K)", tq::TemplateDefault},
    {Button, 2, "取消(&C)", "取消(&C)"},
};

inline const Rows kAdd = {
    {Edit, 741, "", "", tq::TemplateReadOnly},
    {ListBox, 781, "", "", tq::TemplateOwnerDrawn},
    {ListBox, 782, "", "", tq::TemplateOwnerDrawn},
    {Button, 803, "加入(&A)", "加入(&A)"},
    {Button, 801, "加入且修改組合內容(&M)...", "加入且修改组合内容(&M)..."},
    {Button, 802, "建立新的商品組合(&N)...", "建立新的商品组合(&N)..."},
    {Button, 1, "完成(&K)", "完成(&K)", tq::TemplateDefault},
};

inline const Rows kAddOne = {
    {ListBox, 781, "", "", tq::TemplateOwnerDrawn},
    {ListBox, 782, "", "", tq::TemplateOwnerDrawn},
    {Button, 803, "加入(&A)", "加入(&A)"},
    {Button, 802, "加入修改(&M)...", "加入修改(&M)..."},
    {Button, 801, "新增組合(&N)...", "新增组合(&N)..."},
    {Button, 1, "完成(&K)", "完成(&K)", tq::TemplateDefault},
};

inline const Rows kCategory = {{Label, 0, "類別:", "类别:"}, {ComboBox, 762}, {ListView, 781}};
inline const Rows kRegion = {{Label, 0, "地區:", "地区:"}, {ComboBox, 761}};

inline Rows operator+(Rows rows, const Rows& more) {
  rows.insert(rows.end(), more.begin(), more.end());
  return rows;
}

inline const ExpectedTemplate kExpected[] = {
    {1000, "自選商品組合", "自选商品组合",
     kListOfLists +
         Rows{{ListBox, 781, "", "", tq::TemplateOwnerDrawn}, {Button, 805, "預設", "预设"}}},
    {1001, "新增自選商品組合", "新增自选商品组合", kContents + kSubTitle},
    {1002, "商品查詢", "商品查询", kSearch},
    {1003, "設定商品組合", "设定商品组合", kSet},
    {1004, "加入自選商品組合", "加入自选商品组合", kAdd},
    {1005, "加入商品組合", "加入商品组合", kAddOne},
    {1007, "經濟指標查詢", "经济指标查询", kRegion + kCategory},
    {1008, "國際商品查詢", "国际商品查询", kCategory},
    {1009, "國際期貨查詢", "国际期货查询", kRegion + kCategory},
    {1010, "自選商品組合(雲自選)", "自选商品组合(云自选)", kListOfLists + Rows{{ListBox, 781}}},
    {1011, "新增自選商品組合(雲自選)", "新增自选商品组合(云自选)", kContents},
};
