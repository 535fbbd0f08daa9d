#pragma once

#include <array>

class LabelButton;
class QLabel;
class QLineEdit;

/// The controls that both settlement layouts have, under their own names. lblFee is in the order of the
/// label keys "L0".."L9".
struct SettlementControls {
    QLabel* lblCompName;
    QLabel* lblReportName;
    QLabel* lblPriceUCase;
    std::array<QLabel*, 10> lblFee;
    QLineEdit* txtCheckDate;
    QLineEdit* txtCheckNo;
    QLineEdit* txtPRDNo;
    QLineEdit* txtCustName;
    QLineEdit* txtPRDName;
    QLineEdit* txtNum;
    QLineEdit* txtSuttle;
    QLineEdit* txtAmount;
    QLineEdit* txtListNum;
    QLineEdit* txtPer_LManage;
    QLineEdit* txtPer_LElect;
    QLineEdit* txtPer_LUnload;
    QLineEdit* txtPer_LSani;
    QLineEdit* txtLManagePrice;
    QLineEdit* txtLPackPrice;
    QLineEdit* txtLUnloadPrice;
    QLineEdit* txtLExpendPrice;
    QLineEdit* txtLSanitationPrice;
    QLineEdit* txtLElectPrice;
    QLineEdit* txtLRecoupPrice;
    QLineEdit* txtLChillPrice;
    QLineEdit* txtLFieldPrice;
    QLineEdit* txtLOtherPrice;
    QLineEdit* txtLTotalPrice;
    QLineEdit* txtGTotalPrice;
    QLineEdit* txtCheckUser;
    QLineEdit* txtPayUser;
    LabelButton* cmdSubmit;
    LabelButton* cmdCancel;

    /// The ten amount fields in the order in which they are added up and stored.
    std::array<QLineEdit*, 10> Deductions() const
    {
        return {txtLManagePrice, txtLPackPrice,   txtLUnloadPrice, txtLExpendPrice, txtLSanitationPrice,
                txtLElectPrice,  txtLRecoupPrice, txtLChillPrice,  txtLFieldPrice,  txtLOtherPrice};
    }

    /// Of a layout made by the form designer.
    template <typename Layout>
    static SettlementControls Of(const Layout& ui)
    {
        return {.lblCompName = ui.lblCompName,
                .lblReportName = ui.lblReportName,
                .lblPriceUCase = ui.lblPriceUCase,
                .lblFee = {ui.lblFee_0, ui.lblFee_1, ui.lblFee_2, ui.lblFee_3, ui.lblFee_4, ui.lblFee_5,
                           ui.lblFee_6, ui.lblFee_7, ui.lblFee_8, ui.lblFee_9},
                .txtCheckDate = ui.txtCheckDate,
                .txtCheckNo = ui.txtCheckNo,
                .txtPRDNo = ui.txtPRDNo,
                .txtCustName = ui.txtCustName,
                .txtPRDName = ui.txtPRDName,
                .txtNum = ui.txtNum,
                .txtSuttle = ui.txtSuttle,
                .txtAmount = ui.txtAmount,
                .txtListNum = ui.txtListNum,
                .txtPer_LManage = ui.txtPer_LManage,
                .txtPer_LElect = ui.txtPer_LElect,
                .txtPer_LUnload = ui.txtPer_LUnload,
                .txtPer_LSani = ui.txtPer_LSani,
                .txtLManagePrice = ui.txtLManagePrice,
                .txtLPackPrice = ui.txtLPackPrice,
                .txtLUnloadPrice = ui.txtLUnloadPrice,
                .txtLExpendPrice = ui.txtLExpendPrice,
                .txtLSanitationPrice = ui.txtLSanitationPrice,
                .txtLElectPrice = ui.txtLElectPrice,
                .txtLRecoupPrice = ui.txtLRecoupPrice,
                .txtLChillPrice = ui.txtLChillPrice,
                .txtLFieldPrice = ui.txtLFieldPrice,
                .txtLOtherPrice = ui.txtLOtherPrice,
                .txtLTotalPrice = ui.txtLTotalPrice,
                .txtGTotalPrice = ui.txtGTotalPrice,
                .txtCheckUser = ui.txtCheckUser,
                .txtPayUser = ui.txtPayUser,
                .cmdSubmit = ui.cmdSubmit,
                .cmdCancel = ui.cmdCancel};
    }
};
