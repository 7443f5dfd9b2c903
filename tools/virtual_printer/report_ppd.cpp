#include "report_ppd.h"

const char kReportPpd[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "REPORT.PPD"
*Manufacturer: "QVControls"
*Product: "(Report)"
*ModelName: "Report"
*NickName: "Report"
*ShortNickName: "Report"
*PSVersion: "(3010.000) 1"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*TTRasterizer: Type42
*DefaultResolution: 600dpi
*OpenUI *PageSize: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize [595 842]>> setpagedevice"
*PageSize Letter/Letter: "<</PageSize [612 792]>> setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: "<</PageSize [595 842]>> setpagedevice"
*PageRegion Letter/Letter: "<</PageSize [612 792]>> setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "18 36 577 806"
*ImageableArea Letter/Letter: "18 36 594 756"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*PaperDimension Letter/Letter: "612 792"
*DefaultFont: Courier
*Font Courier: Standard "(001.000)" Standard ROM
*Font Helvetica: Standard "(001.000)" Standard ROM
*% End
)ppd";
