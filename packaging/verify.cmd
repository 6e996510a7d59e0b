@echo off
rem Usage: verify.cmd [--quick | --filter PATTERN] ["CONNECTION STRING"]
rem
rem Tries the Tavrin.dll of this folder on this desktop and writes report.txt beside it. verify.cmd --help says more.
"%~dp0tavrin_verify.exe" %*
