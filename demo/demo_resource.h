// Resource numbers of the demo host's own resources.
#pragma once
#define IDD_DEMO_PAGE       30400
#define IDC_DEMO_TITLE      3401
#define IDC_DEMO_TITLE_LABEL 3402
