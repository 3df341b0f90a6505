module vorn32host

go 1.19
