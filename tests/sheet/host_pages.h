// Resource numbers of the host pages used by the sheet tests.
#pragma once
#define IDD_HOST_PAGE   30200
#define IDC_HOST_VALUE  3201
