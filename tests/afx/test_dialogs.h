// Resource numbers of the dialog tests' templates.
#pragma once
#define IDD_TEST_DIALOG 30100
#define IDD_TEST_PAGE1  30101
#define IDD_TEST_PAGE2  30102
#define IDC_TEST_NUMBER 3001
#define IDC_TEST_CHECK  3002
#define IDC_TEST_COUNT  3003
#define IDC_TEST_NAME   3004
